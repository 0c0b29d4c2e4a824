// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "readings/Reading.hpp"

namespace fuelgauge {

/// The sixteen properties that have a file, as they were read one after the other, in the order of
/// their numbers.
class Readings {
 public:
  explicit Readings(std::vector<Reading> all) : all(std::move(all)) {}

  const Reading& operator[](dral::FuelGaugeProperty id) const;

  // What `Reading` has of the same names.
  std::optional<int> Number(dral::FuelGaugeProperty id) const { return (*this)[id].Number(); }
  std::optional<std::string_view> Text(dral::FuelGaugeProperty id) const {
    return (*this)[id].Text();
  }
  const dral::LifetimeData* Record() const;

  /// @return whether any of them could be read
  bool AnySucceeded() const;

  /// @return the reading that tells most of a gauge that gives nothing: the first that must be there
  const Reading& Telling() const;

  auto begin() const { return all.begin(); }
  auto end() const { return all.end(); }

 private:
  std::vector<Reading> all;
};

}  // namespace fuelgauge
