// SPDX-License-Identifier: MIT
// What every operation answers, as each type, to each way in which a property's file can fail it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <future>
#include <string>

#include "support/FolderGauge.hpp"

using namespace dral;

namespace {

struct Situation {
  std::string target;  // of the link that is the property's file
  std::string text, number, record, write;
  bool settable = true;
  FuelGaugeProperty property = FuelGaugeProperty::LifetimeData;
};
const Situation situations[] = {
    {"none", "3 ENOENT", "2 ENOENT", "3 ENOENT", "3 ENOENT"},
    {".", "4 EISDIR", "2 EISDIR", "4 EISDIR", "3 EISDIR"},
    {"file", "3 ELOOP", "2 ELOOP", "3 ELOOP", "3 ELOOP"},
    {"word/below", "3 ENOTDIR", "2 ENOTDIR", "3 ENOTDIR", "3 ENOTDIR"},
    {"/proc/self/mem", "4 EIO", "2 EIO", "4 EIO", "0 EIO"},  // as a bus that is dead
    {"empty", "4", "2", "4", "0"},
    {"word", "0", "2", "4", "0"},  // no number, and too short for a record
    {"large", "0", "2", "4", "0"},
    {"large", "0", "2", "4", "2", false},
    {"large", "2", "2", "2", "2", true, FuelGaugeProperty{17}},
    {"large", "0", "0", "0", "2", true, FuelGaugeProperty::LifetimeDataResetValue},
};

void AskAll() {
  for (const Situation& each : situations) {
    const TemporaryFolder folder;
    folder.Write("empty", "");
    folder.Write("word", "full of it");
    folder.Write("large", "99999999999999999999");
    std::filesystem::create_symlink(each.target, folder.At("file"));
    const PropertyInfo info{
        .settable = each.settable, .location = folder.At("file"), .resetValue = "value"};
    Bq27542FuelGauge gauge("", MapOf(FuelGaugeProperty::LifetimeData, info));
    const auto expect = [&each](const std::string& answer, auto operation) {
      errno = E2BIG;  // something older
      EXPECT_EQ(Describe(operation()), answer) << each.target;
    };
    const auto read = [&](const PropertyValue& hint, const std::string& answer) {
      expect(answer, [&] { return gauge.Get(each.property, hint).first; });
    };
    read("", each.text);
    read(0, each.number);
    read(0U, each.number);
    read(true, each.number);
    read(LifetimeData{}, each.record);
    expect(each.write, [&] { return gauge.Set(each.property, "value"); });
    expect(each.write, [&] { return gauge.Reset(each.property); });
  }
}

}  // namespace

TEST(Situations, HaveTheirStatusAndErrnoThoughTwoThreadsLogToNowhere) {
  const int standardError = ::dup(STDERR_FILENO);
  ASSERT_EQ(::dup2(::open("/", O_PATH), STDERR_FILENO), STDERR_FILENO);  // as if closed: EBADF
  LogOutput::SetLevel(LogLevel{8});
  auto other = std::async(std::launch::async, AskAll);
  AskAll();
  other.get();
  ::dup2(standardError, STDERR_FILENO);
}
