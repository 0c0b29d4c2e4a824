// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace fuelgauge {

/// Where the kernel has its batteries and chargers.
constexpr auto SupplyClass = "/sys/class/power_supply";

/// One of them.
struct Supply {
  std::string name;
  std::string type;  ///< such as "Battery", "Mains" or "USB"

  bool IsBattery() const { return type == "Battery"; }
};

/// @return those that are there now, in the order of their names
std::vector<Supply> Supplies();

/// @return what there is, for a message: "the supplies are AC (Mains), BAT0 (Battery)"
std::string SuppliesForPeople();

/// @return the folder that @p device means: one with a slash itself, else the supply of that name
std::string SupplyFolder(const std::string& device);

/// @return the name of the supply in @p folder: its last part
std::string SupplyName(const std::string& folder);

/// @return whether a driver other than the kernel's for this family of gauges serves @p folder. What is
///         known of the gauge does not hold there. A folder that names no driver, a copy say, is ours.
bool HasOtherDriver(const std::string& folder);

/// @return whether the battery in @p folder counts energy, and not charge
bool CountsEnergy(const std::string& folder);

}  // namespace fuelgauge
