// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace fuelgauge {

/// Where the kernel has its batteries and chargers.
constexpr auto SupplyClass = "/sys/class/power_supply";

/// @return the names of the batteries that are there now, in their order
std::vector<std::string> Batteries();

/// @return what there is, for a message: "the supplies are AC (Mains), BAT0 (Battery)"
std::string SuppliesForPeople();

/// @return the folder that @p device means: one with a slash itself, else the supply of that name
std::string SupplyFolder(const std::string& device);

/// @return the name of the supply in @p folder: its last part
std::string SupplyName(const std::string& folder);

/// @return the type of the supply in @p folder, such as "Battery", "Mains" or "USB"; empty when it has none
std::string SupplyType(const std::string& folder);

/// @return whether a driver other than the kernel's for this family of gauges serves @p folder. What is
///         known of the gauge does not hold there. A folder that names no driver, a copy say, is ours.
bool HasOtherDriver(const std::string& folder);

/// @return whether the battery in @p folder counts energy, and not charge
bool CountsEnergy(const std::string& folder);

}  // namespace fuelgauge
