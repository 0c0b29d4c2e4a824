// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include "Fault.hpp"
#include "support/FolderGauge.hpp"

using namespace dral;

TEST(Writable, WritesJustTheValueInTheFormOfItsType) {
  constexpr auto Property = FuelGaugeProperty::LifetimeData;
  FolderGauge at;
  const std::string path = at.folder.At("lifetime_data");
  const std::string before = "older, and longer than what is written";
  const LifetimeData given{1, -2, 3, 4, 5, -6};
  const std::string notFound =
      "3 Writable WriteData: Writable::Set failed - file not found: " + path + "\n";
  const std::string notOpened =
      "3 Writable operator(): Writable::Set failed to open file: " + path +
      "error: " + std::strerror(ENOENT) + "\n";
  struct Case {
    PropertyValue value;
    std::string outcome;  // the status, and what the file holds then
    Fault fault{};
    std::string records{};
  };
  const Case cases[] = {
      {-2147483647 - 1, "0 -2147483648"},
      {4294967295U, "0 4294967295"},
      {true, "0 1"},
      {false, "0 0"},
      {"any\ntext ", "0 any\ntext "},
      {"", "0 "},
      {std::string(5000, 'x'), "0 " + std::string(5000, 'x')},
      {given, "0 " + Bytes(given)},
      {"text", "3 EACCES " + before, {"stat", 0, EACCES}, notFound},
      {"text", "3 ENOENT ", {"found", 0, ENOENT}, notOpened},
      {"text", "0 text", {"write", 1, EINTR, 3}},
      {"text", "0 EIO tex", {"write", 1, EIO, 3}},
      {given, "0 ENOSPC ", {"write", 0, ENOSPC}},
      {"text", "0 EDQUOT text", {"close", 0, EDQUOT}},
  };
  ::close(STDIN_FILENO);  // so that the file may get descriptor 0
  for (const Case& each : cases) {
    at.folder.Write("lifetime_data", before);
    const auto files = OpenFiles();
    fault = each.fault;
    const std::string status = Describe(at.gauge.Set(Property, each.value));
    fault = {};
    EXPECT_EQ(status + " " + at.folder.Read("lifetime_data"), each.outcome);
    EXPECT_EQ(at.log.Take(), each.records) << each.fault.call;
    EXPECT_EQ(OpenFiles(), files);
  }
  EXPECT_EQ(Describe(at.gauge.Reset(Property)), "0");
  EXPECT_EQ(at.folder.Read("lifetime_data"), Bytes(LifetimeData{}));
}
