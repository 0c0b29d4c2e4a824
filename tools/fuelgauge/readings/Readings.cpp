// SPDX-License-Identifier: MIT
#include "readings/Readings.hpp"

#include <algorithm>
#include <functional>

namespace fuelgauge {

const Reading& Readings::operator[](dral::FuelGaugeProperty id) const {
  return *std::find_if(begin(), end(),
                       [id](const Reading& reading) { return reading.property->id == id; });
}

const dral::LifetimeData* Readings::Record() const {
  return (*this)[dral::FuelGaugeProperty::LifetimeData].Record();
}

bool Readings::AnySucceeded() const {
  return std::any_of(begin(), end(), std::mem_fn(&Reading::Succeeded));
}

const Reading& Readings::Telling() const {
  const auto found = std::find_if_not(begin(), end(), std::mem_fn(&Reading::MayBeMissing));
  return found == end() ? all.front() : *found;
}

}  // namespace fuelgauge
