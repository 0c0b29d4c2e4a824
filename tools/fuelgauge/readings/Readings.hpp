// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "readings/Reading.hpp"

namespace fuelgauge {

/// The properties that have a file, as they were read one after the other, in the order of their
/// numbers.
class Readings {
 public:
  explicit Readings(std::vector<Reading> all, bool countEnergy = false)
      : all(std::move(all)), countEnergy(countEnergy) {}

  const Reading& operator[](dral::FuelGaugeProperty id) const;

  // What `Reading` has of the same names.
  std::optional<int> Number(dral::FuelGaugeProperty id) const { return (*this)[id].Number(); }
  std::optional<std::string_view> Text(dral::FuelGaugeProperty id) const {
    return (*this)[id].Text();
  }
  const dral::LifetimeData* Record() const;

  /// @return whether a driver other than this gauge's gave them
  bool AreOfOtherDriver() const { return all.front().otherDriver; }

  /// @return for a battery that counts energy, what to say instead of each value that is not there
  std::string_view EnergyRemark() const {
    return countEnergy ? "this battery counts energy: properties that it does not have are left out"
                       : "";
  }

  /// @return whether any of them could be read
  bool AnySucceeded() const;

  /// @return the reading that tells most of a gauge that gives nothing: the first that must be there,
  ///         or the first
  const Reading& Telling() const;

  auto begin() const { return all.begin(); }
  auto end() const { return all.end(); }

 private:
  std::vector<Reading> all;
  bool countEnergy;
};

}  // namespace fuelgauge
