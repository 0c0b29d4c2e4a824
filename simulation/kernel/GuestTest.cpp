// SPDX-License-Identifier: MIT
// Runs in the virtual machine of scripts/kernel-test, where the kernel's own driver serves a simulated
// chip. Each fault is checked twice: what the kernel answers to a plain read, and what the library
// makes of it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>
#include <FuelGaugeIF.hpp>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <future>
#include <set>
#include <thread>

#include "support/LogCapture.hpp"
#include "support/OpenFiles.hpp"
#include "support/Outcome.hpp"

using namespace dral;

namespace {

const std::string Supply = "/sys/class/power_supply/bq27542-0/";
const std::string Record = Supply + "lifetime_data";
// What the driver calls the chip, such as "0-0055".
const std::string Chip = std::filesystem::canonical(Supply + "device").filename();

/// @return the text that the file gives, and the name of the error that ends it, if any
std::string PlainRead(const std::string& path) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  std::array<char, 4096> block;
  std::string text;
  ssize_t count = file < 0 ? -1 : 1;
  while (count > 0 && (count = ::read(file, block.data(), block.size())) > 0) {
    text.append(block.data(), static_cast<std::size_t>(count));
  }
  if (count < 0) {
    text += ::strerrorname_np(errno);
  }
  ::close(file);
  return text;
}

/// @return the name of the error, empty for none
std::string PlainWrite(const std::string& path, const std::string& text) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
  const ssize_t count = ::write(file, text.data(), text.size());
  std::string error = count < 0 ? ::strerrorname_np(errno) : "";
  ::close(file);
  return error;
}

/// A register or fault of the simulated chip, set while this lives.
class Knob {
 public:
  Knob(const std::string& name, int value)
      : path("/sys/devices/gauge-sim/" + name), before(PlainRead(path)) {
    EXPECT_EQ(PlainWrite(path, std::to_string(value)), "") << name;
  }
  ~Knob() { EXPECT_EQ(PlainWrite(path, before), ""); }

 private:
  std::string path;
  std::string before;
};

/// @param file "bind", when the driver reads the whole chip meanwhile, or "unbind"
void Tell(const char* file) {
  EXPECT_EQ(PlainWrite(std::string("/sys/bus/i2c/drivers/bq27xxx-battery/") + file, Chip), "");
}

/// What the driver answers in the first seconds of a dead bus: the error, since it reads the chip each
/// time; the last value, from its cache; or the error as a negative value.
enum Dying { Error, Kept, Number };

const bool Since610 = ::strverscmp(PlainRead("/proc/sys/kernel/osrelease").c_str(), "6.10") >= 0;
const Dying Changed = Since610 ? Error : Kept;

// In the order of FuelGaugeProperty.
const std::pair<std::string, Dying> Attributes[] = {
    {"manufacturer", Kept}, {"technology", Kept},     {"status", Error},
    {"present", Kept},      {"voltage_now", Error},   {"current_now", Error},
    {"capacity", Kept},     {"capacity_level", Kept}, {"temp", Changed},
    {"charge_now", Error},  {"charge_full", Changed}, {"cycle_count", Since610 ? Number : Kept},
    {"power_avg", Error},   {"health", Kept},         {"time_to_empty_now", Changed}};

class Guest : public ::testing::Test {
 protected:
  void SetUp() override {
    Tell("unbind");
    Tell("bind");
  }

  std::string Get(FuelGaugeProperty property, const PropertyValue& hint) const {
    return Describe(gauge->Get(property, hint));
  }
  std::string GetRecord() const { return Get(FuelGaugeProperty::LifetimeData, LifetimeData{1}); }
  std::string Reset() const { return Describe(gauge->Reset(FuelGaugeProperty::LifetimeData)); }

  const LogCapture quiet{0};
  std::unique_ptr<FuelGaugeIF> gauge =
      InterfaceFactory::Create<FuelGaugeIF, std::string_view>("Bq27542FuelGauge", "");
  const std::string standard = Bytes(LifetimeData{});  ///< what a record is before it is read
};

TEST_F(Guest, ABusThatFailsGivesNoDataOrFailure) {
  for (const int error : {EIO, ENXIO, EREMOTEIO, ETIMEDOUT, EAGAIN, EBUSY, ENODEV}) {
    SetUp();
    const std::string name = ::strerrorname_np(error);
    for (const auto& [file, dying] : Attributes) {
      const std::string first[] = {name, PlainRead(Supply + file), std::to_string(-error) + "\n"};
      const Knob bus("bus_error", error);
      EXPECT_EQ(PlainRead(Supply + file), first[dying]) << file << " at first, " << name;
    }
    const Knob bus("bus_error", error);
    SetUp();
    std::uint32_t number = 0;
    for (const auto& [file, dying] : Attributes) {
      const FuelGaugeProperty property{number++};
      const bool absent = file == "present";
      EXPECT_EQ(PlainRead(Supply + file), absent ? "0\n" : name) << file;
      EXPECT_EQ(Get(property, ""), absent ? "0 string 0" : "4 string ") << file << " " << name;
      EXPECT_EQ(Get(property, 99), absent ? "0 int 0" : "2 int 99") << file << " " << name;
    }
    EXPECT_EQ(GetRecord(), "4 record " + standard);
    EXPECT_EQ(PlainWrite(Record, standard), name);
    EXPECT_EQ(Reset(), "0");
  }
}

TEST_F(Guest, EachFaultOfTheChipHasItsAnswer) {
  const auto expect = [this](const std::string& file, const std::string& text,
                             FuelGaugeProperty property, const PropertyValue& hint,
                             const std::string& answer) {
    EXPECT_EQ(PlainRead(Supply + file), text);
    EXPECT_EQ(Get(property, hint), answer) << file << " " << text;
  };
  {
    const Knob stuckAtOnes("state_of_charge", 0xFFFF);
    const Knob current("average_current", 0);
    const Knob time("time_to_empty", 0xFFFF);
    SetUp();
    expect("capacity", "65535\n", FuelGaugeProperty::StateOfCharge, 99, "0 int 65535");
    expect("status", "Not charging\n", FuelGaugeProperty::Status, "", "0 string Not charging");
    expect("time_to_empty_now", "ENODATA", FuelGaugeProperty::TimeToEmpty, 99, "2 int 99");
    expect("time_to_empty_now", "ENODATA", FuelGaugeProperty::TimeToEmpty, "", "4 string ");
  }
  const auto property = FuelGaugeProperty::LifetimeData;
  const std::string ten(10, 'r');
  const std::string partly = "4 record " + ten + standard.substr(10);
  ASSERT_EQ(PlainWrite(Record, std::string(32, 'r')), "");
  {
    const Knob error("record_read_error", EIO);
    expect("lifetime_data", "EIO", property, LifetimeData{1}, "4 record " + standard);
    const Knob bytes("record_read_bytes", 10);
    expect("lifetime_data", ten + "EIO", property, LifetimeData{1}, partly);
    expect("lifetime_data", ten + "EIO", property, "", "4 string ");
  }
  const Knob length("record_length", 10);
  expect("lifetime_data", ten, property, LifetimeData{1}, partly);
  expect("lifetime_data", ten, property, "", "0 string " + ten);
  const Knob none("record_length", 0);
  expect("lifetime_data", "", property, LifetimeData{1}, "4 record " + standard);
}

TEST_F(Guest, ARefusedWriteIsASuccessThatLeavesTheRecord) {
  const std::string kept(32, 'r');
  ASSERT_EQ(PlainWrite(Record, kept), "");
  for (const int error : {EIO, EINVAL, EPERM}) {
    const Knob refused("record_write_error", error);
    EXPECT_EQ(PlainWrite(Record, standard), ::strerrorname_np(error));
    EXPECT_EQ(Reset(), "0");
    EXPECT_EQ(PlainRead(Record), kept);
  }
}

TEST_F(Guest, UnboundAndBoundAgainWhileTwoThreadsRead) {
  const Knob slow("bus_delay_ms", 2);  // so that reads are under way when the device goes
  const auto before = OpenFiles();
  std::atomic<bool> stop = false;
  std::array<std::atomic<int>, 2> passes{};
  // Each kind of answer: what was read, and the status.
  const auto read = [&](std::atomic<int>& pass) {
    std::set<std::string> answers;
    for (; !stop; ++pass) {
      answers.insert("text " + Get(FuelGaugeProperty::Status, "").substr(0, 2));
      answers.insert("number " + Get(FuelGaugeProperty::VoltageNow, 99));
      answers.insert("record " + GetRecord().substr(0, 2));
    }
    return answers;
  };
  std::future<std::set<std::string>> threads[] = {
      std::async(std::launch::async, read, std::ref(passes[0])),
      std::async(std::launch::async, read, std::ref(passes[1]))};
  // A pass may already be under way; the second to finish began after this point. Waiting for a time
  // instead would leave it to chance whether a thread sees the device, or its absence, at all.
  const auto letBothRead = [&] {
    for (auto& pass : passes) {
      for (const int start = pass; pass < start + 2;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
      }
    }
  };
  for (int round = 0; round < 20; ++round) {
    letBothRead();
    Tell("unbind");
    EXPECT_EQ(PlainRead(Supply + "status"), "ENOENT");
    EXPECT_EQ(Reset(), "3");
    letBothRead();
    Tell("bind");
  }
  stop = true;
  for (auto& thread : threads) {
    auto answers = thread.get();
    // A file may be opened before the device goes and read after; that is seldom seen.
    answers.erase("text 4 ");
    answers.erase("record 4 ");
    EXPECT_EQ(answers, (std::set<std::string>{"text 0 ", "text 3 ", "number 0 int 3786000",
                                              "number 2 int 99", "record 0 ", "record 3 "}));
  }
  EXPECT_EQ(OpenFiles(), before);
  EXPECT_EQ(Get(FuelGaugeProperty::Status, ""), "0 string Discharging");
}

}  // namespace
