// SPDX-License-Identifier: MIT
// Runs in the virtual machine of scripts/kernel-test, where the kernel's own driver serves a simulated
// chip. Each fault is checked twice: what the kernel answers to a plain read, and what the library
// makes of it.
#include <Bq27542FuelGauge.hpp>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <future>
#include <memory>
#include <set>
#include <string>
#include <thread>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"

using namespace dral;

const std::string Supply = "/sys/class/power_supply/bq27542-0";
const std::string RecordFile = Supply + "/lifetime_data";
constexpr auto Record = FuelGaugeProperty::LifetimeData;
// What the driver calls the chip, such as "0-0055".
const std::string Chip = std::filesystem::canonical(Supply + "/device").filename();

/// @return the text that the file gives, and the name of the error that ends it, if any
static std::string PlainRead(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY);
  std::array<char, 4096> block;
  std::string text;
  ssize_t count = file < 0 ? -1 : 1;
  while (count > 0 && (count = ::read(file, block.data(), block.size())) > 0) {
    text.append(block.data(), static_cast<std::size_t>(count));
  }
  text += count < 0 ? ::strerrorname_np(errno) : "";
  ::close(file);
  return text;
}

/// @return the name of the error, empty for none
static std::string PlainWrite(const std::string& path, const std::string& text) {
  const int file = ::open(path.c_str(), O_WRONLY);
  const ssize_t count = ::write(file, text.data(), text.size());
  const std::string error = count < 0 ? ::strerrorname_np(errno) : "";
  ::close(file);
  return error;
}

/// A register or fault of the simulated chip, set while this lives.
struct Knob {
  Knob(const std::string& name, int value) : path("/sys/devices/gauge-sim/" + name) {
    EXPECT_EQ(PlainWrite(path, std::to_string(value)), "") << name;
  }
  ~Knob() { EXPECT_EQ(PlainWrite(path, before), ""); }
  const std::string path;
  const std::string before = PlainRead(path);
};

/// @param file "bind", when the driver reads the whole chip meanwhile, or "unbind"
static void Tell(const char* file) {
  EXPECT_EQ(PlainWrite(std::string("/sys/bus/i2c/drivers/bq27xxx-battery/") + file, Chip), "");
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
      EXPECT_EQ(PlainRead(info.location), absent ? "0\n" : name) << info.location;
      EXPECT_EQ(Get(property, ""), absent ? "0 string 0" : "4 " + name + " string ")
          << info.location;
      EXPECT_EQ(Get(property, 99), absent ? "0 int 0" : "2 " + name + " int 99") << info.location;
    }
    EXPECT_EQ(Get(Record, LifetimeData{1}), "4 " + name + " record " + standard);
    EXPECT_EQ(Describe(gauge.Set(Record, LifetimeData{})), "0 " + name);
  }
}

TEST_F(Guest, EachFaultOfTheChipHasItsAnswer) {
  const auto expect = [this](FuelGaugeProperty property, const PropertyValue& hint,
                             const std::string& plain, const std::string& answer) {
    EXPECT_EQ(PlainRead(properties->at(property).location), plain);
    EXPECT_EQ(Get(property, hint), answer) << plain;
  };
  const Knob stuckAtOnes("state_of_charge", 0xFFFF);
  const Knob current("average_current", 0);
  const Knob time("time_to_empty", 0xFFFF);
  SetUp();
  expect(FuelGaugeProperty::StateOfCharge, 99, "65535\n", "0 int 65535");
  expect(FuelGaugeProperty::TimeToEmpty, 99, "ENODATA", "2 ENODATA int 99");
  expect(FuelGaugeProperty::TimeToEmpty, "", "ENODATA", "4 ENODATA string ");
  const std::string ten(10, 'r');
  const std::string partly = ten + standard.substr(10);
  ASSERT_EQ(PlainWrite(RecordFile, std::string(32, 'r')), "");
  const Knob length("record_length", 10);
  expect(Record, LifetimeData{1}, ten, "4 record " + partly);
  const Knob bytes("record_read_bytes", 10);
  const Knob error("record_read_error", EIO);
  expect(Record, LifetimeData{1}, ten + "EIO", "4 EIO record " + partly);
  expect(Record, "", ten + "EIO", "4 EIO string ");
}

TEST_F(Guest, ARefusedWriteIsASuccessThatLeavesTheRecord) {
  const std::string kept(32, 'r');
  ASSERT_EQ(PlainWrite(RecordFile, kept), "");
  const Knob refused("record_write_error", EPERM);
  EXPECT_EQ(PlainWrite(RecordFile, standard), "EPERM");
  EXPECT_EQ(Describe(gauge.Reset(Record)), "0 EPERM");
  EXPECT_EQ(PlainRead(RecordFile), kept);
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
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
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
