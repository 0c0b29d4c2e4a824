// SPDX-License-Identifier: MIT
#include "watching/Summary.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

using namespace fuelgauge;

static Readings ReadingsOf(std::optional<int> current) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    readings.push_back({&property, dral::FuelGaugeStatus::FileError, Hint(property.type)});
    const bool voltage = property.id == dral::FuelGaugeProperty::VoltageNow;
    if (voltage || (current && property.id == dral::FuelGaugeProperty::CurrentNow)) {
      readings.back() = {&property, dral::FuelGaugeStatus::Success, voltage ? 3700000 : *current};
    }
  }
  return Readings("", std::move(readings));
}

TEST(Summary, GapsMoveNoCharge) {
  using Samples = std::vector<std::pair<int, std::optional<int>>>;  // seconds, µA
  const std::string unknown = " in which the current was unknown";
  const std::pair<Samples, std::string> cases[] = {
      {{{100, -360000}, {110, -720000}, {150, -720000}}, "charge moved: -9.5 mAh"},
      {{{0, 3600000}, {10, {}}, {20, {}}, {59, 3600000}, {69, 3600000}, {110, 3600000}},
       "charge moved: 10.0 mAh, not counting 2 gaps of 1 min 40 s in all" + unknown},
      {{{0, 3600000}, {10, 3600000}, {3600, 3600000}, {3610, 3600000}, {3620, {}}},
       "charge moved: 20.0 mAh, not counting 2 gaps of 1 h 0 min 0 s in all" + unknown},
      {{{0, {}}, {10, {}}}, "VoltageNow: 3.700 V to 3.700 V, mean 3.700 V"},  // and no charge
  };
  for (const auto& [samples, last] : cases) {
    Summary summary(Summary::Seconds(10));
    for (const auto& [time, current] : samples) {
      summary.Add(Summary::Seconds(time), ReadingsOf(current));
    }
    EXPECT_EQ(summary.Lines().back(), last);
  }
}
