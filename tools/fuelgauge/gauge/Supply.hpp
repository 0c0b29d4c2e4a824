// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace fuelgauge {

/// Where the kernel has its batteries and chargers.
constexpr auto SupplyClass = "/sys/class/power_supply";

/// A power_supply device, or a folder that looks like one. Each answer is that of this moment.
class Supply {
 public:
  /// @param device with a slash, a folder; else the name of a supply of the kernel
  explicit Supply(const std::string& device);

  const std::string& Folder() const { return folder; }

  /// @return the name under which the kernel has it: the folder's last part
  std::string Name() const;

  /// @return its type, such as "Battery", "Mains" or "USB"; empty for a folder that does not say
  std::string Type() const;

  /// @return whether it powers a device of its own, such as a wireless mouse, and not the system
  bool IsOfDevice() const;

  /// @return whether a driver other than the kernel's for this family of gauges serves it. What is known of
  ///         the gauge does not hold there. A folder that names no driver, a copy say, is ours.
  bool HasOtherDriver() const;

  /// @return whether the battery counts energy, and not charge
  bool CountsEnergy() const;

  /// @return whether it was given as a name of the kernel's
  bool IsNamed() const { return named; }

  /// @return when it is not there: so, and of a named one, why, and what to do; else nothing
  std::string Absence() const;

 private:
  bool named;
  std::string folder;
};

/// @return the batteries that the kernel has now, in the order of their names
std::vector<Supply> Batteries();

/// @return what there is, for a message: "the supplies are AC (Mains), BAT0 (Battery)"
std::string SuppliesForPeople();

}  // namespace fuelgauge
