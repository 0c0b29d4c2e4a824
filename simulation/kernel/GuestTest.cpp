// SPDX-License-Identifier: MIT
// Runs in the virtual machine of scripts/kernel-test, where the kernel's own driver serves a simulated
// chip. What the library leaves in errno is what the kernel answered.
#include <Bq27542FuelGauge.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <future>
#include <set>
#include <thread>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"

using namespace dral;

const std::string Supply = "/sys/class/power_supply/bq27542-0";
const std::string RecordFile = Supply + "/lifetime_data";
constexpr auto Record = FuelGaugeProperty::LifetimeData;
// What the driver calls the chip, such as "0-0055".
const std::string Chip = std::filesystem::canonical(Supply + "/device").filename();

/// @return whether the file took the text
static bool Write(const std::string& path, const std::string& text) {
  return bool(std::ofstream(path) << text << std::flush);
}

/// A register or fault of the simulated chip, set while this lives.
struct Knob {
  Knob(const std::string& name, int value) : path("/sys/devices/gauge-sim/" + name) {
    EXPECT_TRUE(Write(path, std::to_string(value))) << name;
  }
  ~Knob() { EXPECT_TRUE(Write(path, before)); }
  const std::string path;
  const std::string before{std::istreambuf_iterator<char>(std::ifstream(path).rdbuf()), {}};
};

/// @param file "bind", when the driver reads the whole chip meanwhile, or "unbind"
static void Tell(const char* file) {
  EXPECT_TRUE(Write(std::string("/sys/bus/i2c/drivers/bq27xxx-battery/") + file, Chip));
}

class Guest : public ::testing::Test {
 protected:
  // Makes the driver forget what it keeps for five seconds.
  void SetUp() override {
    Tell("unbind");
    Tell("bind");
  }
  std::string Get(FuelGaugeProperty property, const PropertyValue& hint) {
    return Describe(gauge.Get(property, hint));
  }

  const LogCapture quiet{0};
  Bq27542FuelGauge gauge{""};
  const std::unique_ptr<PropertyMap> properties = Bq27542FuelGauge::PropertyMapAt(Supply);
  const std::string standard = Bytes(LifetimeData{});  ///< what a record is before it is read
};

TEST_F(Guest, ABusThatFailsGivesNoDataOrFailure) {
  for (const int error : {EIO, ENXIO, EREMOTEIO, ETIMEDOUT, EAGAIN, EBUSY, ENODEV}) {
    const std::string name = ::strerrorname_np(error);
    const Knob bus("bus_error", error);
    SetUp();
    for (const auto& [property, info] : *properties) {
      const bool absent = property == FuelGaugeProperty::Present;
      EXPECT_EQ(Get(property, ""), absent ? "0 string 0" : "4 " + name + " string ")
          << info.location;
      EXPECT_EQ(Get(property, 99), absent ? "0 int 0" : "2 " + name + " int 99") << info.location;
    }
    EXPECT_EQ(Get(Record, LifetimeData{1}), "4 " + name + " record " + standard);
    EXPECT_EQ(Describe(gauge.Set(Record, LifetimeData{})), "0 " + name);
  }
}

TEST_F(Guest, EachFaultOfTheChipHasItsAnswer) {
  const Knob stuckAtOnes("state_of_charge", 0xFFFF);
  const Knob current("average_current", 0);
  const Knob time("time_to_empty", 0xFFFF);
  SetUp();
  EXPECT_EQ(Get(FuelGaugeProperty::StateOfCharge, 99), "0 int 65535");
  EXPECT_EQ(Get(FuelGaugeProperty::TimeToEmpty, 99), "2 ENODATA int 99");
  EXPECT_EQ(Get(FuelGaugeProperty::TimeToEmpty, ""), "4 ENODATA string ");
  const std::string partly = std::string(10, 'r') + standard.substr(10);
  ASSERT_TRUE(Write(RecordFile, std::string(32, 'r')));
  const Knob length("record_length", 10);
  EXPECT_EQ(Get(Record, LifetimeData{1}), "4 record " + partly);
  const Knob bytes("record_read_bytes", 10);
  const Knob error("record_read_error", EIO);
  EXPECT_EQ(Get(Record, LifetimeData{1}), "4 EIO record " + partly);
  EXPECT_EQ(Get(Record, ""), "4 EIO string ");
}

TEST_F(Guest, UnboundAndBoundAgainWhileTwoThreadsRead) {
  const Knob slow("bus_delay_ms", 2);  // so that reads are under way when the device goes
  const auto before = OpenFiles();
  std::atomic<bool> stop = false;
  std::atomic<int> passes = 0;
  // Each kind of answer: what was read, and the status.
  const auto read = [&] {
    std::set<std::string> answers;
    for (; !stop; ++passes) {
      answers.insert("text " + Describe(gauge.Get(FuelGaugeProperty::Status, "").first));
      answers.insert("number " + Get(FuelGaugeProperty::VoltageNow, 99));
      answers.insert("record " + Describe(gauge.Get(Record, LifetimeData{1}).first));
    }
    return answers;
  };
  auto one = std::async(std::launch::async, read);
  auto other = std::async(std::launch::async, read);
  // Two passes may be under way; the third to finish began after this point. Waiting for a time instead
  // would leave it to chance whether a thread sees the device, or its absence, at all.
  const auto letThemRead = [&passes] {
    for (const int start = passes; passes < start + 3;) {
      std::this_thread::yield();
    }
  };
  for (int round = 0; round < 20; ++round) {
    letThemRead();
    Tell("unbind");
    EXPECT_FALSE(std::filesystem::exists(Supply));
    EXPECT_EQ(Describe(gauge.Reset(Record)), "3 ENOENT");
    letThemRead();
    Tell("bind");
  }
  stop = true;
  auto answers = one.get();
  answers.merge(other.get());
  // A file may be opened before the device goes and read after; that is seldom seen.
  std::erase_if(answers, [](const std::string& answer) {
    return answer.find("ENODEV") != answer.npos || answer.find("EAGAIN") != answer.npos;
  });
  EXPECT_EQ(answers,
            (std::set<std::string>{"text 0", "text 3 ENOENT", "number 0 int 3786000",
                                   "number 2 ENOENT int 99", "record 0", "record 3 ENOENT"}));
  EXPECT_EQ(OpenFiles(), before);
  EXPECT_EQ(Get(FuelGaugeProperty::Status, ""), "0 string Discharging");
}
