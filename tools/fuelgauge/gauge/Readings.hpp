// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gauge/Reading.hpp"

namespace fuelgauge {

/// All properties that have a file, as they were read one after the other: each at the place of its number.
class Readings {
 public:
  /// @param supply the name under which the kernel has it
  Readings(std::string supply, std::vector<Reading> all, bool countEnergy = false)
      : supply(std::move(supply)), all(std::move(all)), countEnergy(countEnergy) {}

  const std::string& SupplyName() const { return supply; }

  const Reading& operator[](dral::FuelGaugeProperty id) const {
    return all.at(static_cast<std::size_t>(id));
  }

  /// @return whether a driver other than this gauge's gave them
  bool AreOfOtherDriver() const { return all.front().otherDriver; }

  /// @return for a battery that counts energy, what to say instead of each value that is not there
  std::string_view EnergyRemark() const {
    return countEnergy ? "this battery counts energy: properties that it does not have are left out"
                       : "";
  }

  /// @return whether any of them could be read
  bool AnySucceeded() const;

  /// @return whether more could be read than what the battery is: who made it, and of what
  bool AnyMeasured() const;

  /// @return the reading that tells most of a gauge that gives nothing: the first that failed and must be
  ///         there, or the first that failed
  const Reading& Telling() const;

  auto begin() const { return all.begin(); }
  auto end() const { return all.end(); }

 private:
  std::string supply;
  std::vector<Reading> all;
  bool countEnergy;
};

}  // namespace fuelgauge
