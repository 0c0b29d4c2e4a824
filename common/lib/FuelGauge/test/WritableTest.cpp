// SPDX-License-Identifier: MIT
#include "Writable.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::FuelGaugeProperty;
using dral::LifetimeData;
using dral::PropertyMap;
using dral::PropertyValue;
using dral::Writable;

namespace {

const LifetimeData Given{1, -2, 3, 4, 5, -6};
const LifetimeData ResetRecord{7, -8, 9, 10, 11, -12};

PropertyMap MapOf(const std::string& location, bool settable = true) {
  return {{FuelGaugeProperty::LifetimeData,
           {.settable = settable,
            .resettable = true,
            .location = location,
            .resetValue = ResetRecord}}};
}

std::string Set(const PropertyMap& map, const PropertyValue& value) {
  return Outcome([&] { return Writable(FuelGaugeProperty::LifetimeData, map).Set(value); });
}

std::string Reset(const PropertyMap& map) {
  return Outcome([&] { return Writable(FuelGaugeProperty::LifetimeData, map).Reset(); });
}

TEST(Writable, WritesJustTheValueInTheFormOfItsType) {
  const TemporaryFolder folder;
  const PropertyMap map = MapOf(folder.At("value"));
  const std::pair<PropertyValue, std::string> cases[] = {
      {250, "250"},
      {-2147483647 - 1, "-2147483648"},
      {4294967295U, "4294967295"},
      {true, "1"},
      {false, "0"},
      {"any\ntext ", "any\ntext "},
      {std::string(), ""},
      {std::string(5000, 'x'), std::string(5000, 'x')},
      {Given, Bytes(Given)},
  };
  LogCapture log;
  for (const auto& [value, contents] : cases) {
    folder.Write("value", "an older content, which is longer than what is written");
    EXPECT_EQ(Set(map, value), "0");
    EXPECT_EQ(folder.Read("value"), contents);
    EXPECT_EQ(Reset(map), "0");
    EXPECT_EQ(folder.Read("value"), Bytes(ResetRecord));
  }
  EXPECT_EQ(log.Take(), "");
}

TEST(Writable, RefusesBeforeItTouchesTheFile) {
  const TemporaryFolder folder;
  const std::string kept = folder.Write("kept", "kept");
  const std::string missing = folder.At("missing");
  const std::string directory = folder.At("");
  struct Case {
    const char* title;
    PropertyMap map;
    std::string outcome;
    std::string record;
  };
  const Case cases[] = {
      {"no entry",
       {},
       "logic_error Writable Missing FuelGaugeProperty definition",
       "WriteData: Writable Missing FuelGaugeProperty definition: 15"},
      {"resettable, but not settable", MapOf(kept, false), "2",
       "WriteData: FuelGaugeProperty:15not settable"},
      {"not settable comes before missing", MapOf(missing, false), "2",
       "WriteData: FuelGaugeProperty:15not settable"},
      {"missing", MapOf(missing), "3",
       "WriteData: Writable::Set failed - file not found: " + missing},
      {"no location", MapOf(""), "3", "WriteData: Writable::Set failed - file not found: "},
      {"cannot be opened", MapOf(directory), "3",
       "operator(): Writable::Set failed to open file: " + directory +
           "error: " + std::strerror(EISDIR)},
  };
  LogCapture log;
  for (const Case& each : cases) {
    const std::string record = "3 Writable " + each.record + "\n";
    EXPECT_EQ(Set(each.map, 5) + Set(each.map, Given), each.outcome + each.outcome) << each.title;
    EXPECT_EQ(log.Take(), record + record) << each.title;
    EXPECT_EQ(Reset(each.map), each.outcome) << each.title;
    EXPECT_EQ(log.Take(), record) << each.title;
    EXPECT_EQ(log.Quietly([&] { return Reset(each.map) + Set(each.map, "text"); }),
              each.outcome + each.outcome);
    EXPECT_EQ(log.Take(), "") << each.title;
  }
  EXPECT_EQ(folder.Read("kept"), "kept");
  EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST(Writable, BytesThatTheKernelRefusesAreStillASuccess) {
  LogCapture log;
  EXPECT_EQ(Set(MapOf("/dev/full"), Given), "0");
  EXPECT_EQ(Set(MapOf("/dev/full"), "text"), "0");
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
