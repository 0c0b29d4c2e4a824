// SPDX-License-Identifier: MIT
// What every operation answers, as each type, to each way in which a property's file can fail it.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <future>

#include "support/FolderGauge.hpp"

using namespace dral;

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
    {"large", "0", "2", "4", "0"},
    {"word", "0", "2", "4", "2", false},  // no number, and too short for a record
    {"word", "2", "2", "2", "2", false, FuelGaugeProperty{17}},
    {"word", "0", "0", "0", "2", false, FuelGaugeProperty::LifetimeDataResetValue},
};

static void AskAll() {
  LogOutput::SetSink({});  // by both threads at once
  for (const Situation& each : situations) {
    const TemporaryFolder folder;
    folder.Write("empty", "");
    folder.Write("word", "full");
    folder.Write("large", "99999999999999999999");
    std::filesystem::create_symlink(each.target, folder.At("file"));
    Bq27542FuelGauge gauge("", MapOf(FuelGaugeProperty::LifetimeData,
                                     {"", each.settable, true, folder.At("file"), "value"}));
    const std::string answers[] = {each.text, each.number, each.number, each.number, each.record};
    for (const PropertyValue& hint : {PropertyValue(""), PropertyValue(0), PropertyValue(0U),
                                      PropertyValue(true), PropertyValue(LifetimeData{})}) {
      errno = E2BIG;  // something older, here and below
      EXPECT_EQ(Describe(gauge.Get(each.property, hint).first), answers[hint.index()]);
    }
    errno = E2BIG;
    EXPECT_EQ(Describe(gauge.Set(each.property, "value")), each.write) << each.target;
    errno = E2BIG;
    EXPECT_EQ(Describe(gauge.Reset(each.property)), each.write) << each.target;
    EXPECT_EQ(folder.Read("word"), "full");
  }
}

TEST(Situations, HaveTheirStatusAndErrnoThoughTwoThreadsLogToNowhere) {
  const int standardError = ::dup(STDERR_FILENO);
  ASSERT_EQ(::dup2(::open("/", O_PATH), STDERR_FILENO), STDERR_FILENO);  // as if closed: EBADF
  LogOutput::SetLevel(LogLevel{8});
  auto other = std::async(std::launch::async, AskAll);
  AskAll();
  other.get();
  ::dup2(standardError, STDERR_FILENO);
}
