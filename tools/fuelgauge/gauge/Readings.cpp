// SPDX-License-Identifier: MIT
#include "gauge/Readings.hpp"

#include <algorithm>

namespace fuelgauge {

bool Readings::AnySucceeded() const {
  return std::any_of(begin(), end(), std::mem_fn(&Reading::Succeeded));
}

bool Readings::AnyMeasured() const {
  using enum dral::FuelGaugeProperty;
  return std::any_of(begin(), end(), [](const Reading& reading) {
    const auto id = reading.property->id;
    return reading.Succeeded() && id != Name && id != Technology;
  });
}

const Reading& Readings::Telling() const {
  const auto found = std::find_if(begin(), end(), [](const Reading& reading) {
    return !reading.Succeeded() && !reading.MayBeMissing();
  });
  return found != end() ? *found
                        : *std::find_if_not(begin(), end(), std::mem_fn(&Reading::Succeeded));
}

}  // namespace fuelgauge
