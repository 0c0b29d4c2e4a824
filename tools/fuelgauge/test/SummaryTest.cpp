// SPDX-License-Identifier: MIT
#include "watching/Summary.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace fuelgauge {
namespace {

Readings ReadingsOf(std::optional<int> current) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    readings.push_back({&property, dral::FuelGaugeStatus::FileError, Hint(property.type)});
    if (current && property.id == dral::FuelGaugeProperty::CurrentNow) {
      readings.back() = {&property, dral::FuelGaugeStatus::Success, *current};
    }
  }
  return Readings("", std::move(readings));
}

TEST(Summary, GapsMoveNoCharge) {
  using Samples = std::vector<std::pair<int, std::optional<int>>>;  // seconds, µA
  const std::string unknown = " in which the current was unknown";
  const std::pair<Samples, std::string> cases[] = {
      {{{100, -360000}, {110, -720000}, {120, -720000}}, "-3.5 mAh"},
      {{{0, 3600000}, {10, {}}, {20, {}}, {30, 3600000}, {40, 3600000}},
       "10.0 mAh, not counting 1 gap of 30 s" + unknown},
      {{{0, 3600000}, {10, 3600000}, {3720, 3600000}, {3730, 3600000}, {3740, {}}},
       "20.0 mAh, not counting 2 gaps of 1 h 2 min 0 s in all" + unknown},
  };
  for (const auto& [samples, moved] : cases) {
    Summary summary(Summary::Seconds(10));
    for (const auto& [time, current] : samples) {
      summary.Add(Summary::Seconds(time), ReadingsOf(current));
    }
    EXPECT_EQ(summary.Lines().back(), "charge moved: " + moved);
  }
}

}  // namespace
}  // namespace fuelgauge
