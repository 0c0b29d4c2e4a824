// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// @return readings of all properties with a file: these values, and no such file for the others
inline Readings ReadingsOf(std::map<dral::FuelGaugeProperty, dral::PropertyValue> values) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (property.id == dral::FuelGaugeProperty::LifetimeDataResetValue) {
      continue;
    }
    const auto found = values.find(property.id);
    if (found != values.end()) {
      readings.push_back({&property, dral::FuelGaugeStatus::Success, std::move(found->second)});
    } else {
      readings.push_back({&property, dral::FuelGaugeStatus::FileError, Hint(property.type)});
    }
  }
  return Readings(std::move(readings));
}

}  // namespace fuelgauge
