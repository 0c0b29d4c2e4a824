// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dral {

/// The properties of a gauge. Log records show a property as its number.
///
/// Units are those of the kernel's power_supply class
/// (Documentation/ABI/testing/sysfs-class-power); the attribute's name is in brackets. The
/// library never converts a number. Text is a `std::string`, and a number an `int`.
enum class FuelGaugeProperty : std::uint32_t {
  Name = 0,           ///< [manufacturer] text, the gauge maker's name
  Technology = 1,     ///< [technology] text, the battery chemistry, such as "Li-ion"
  Status = 2,         ///< [status] text: Charging, Discharging, Not charging, Full, Unknown
  Present = 3,        ///< [present] `bool`, whether a battery is present
  VoltageNow = 4,     ///< [voltage_now] battery voltage in µV
  CurrentNow = 5,     ///< [current_now] battery current in µA, with the kernel's sign
  StateOfCharge = 6,  ///< [capacity] remaining charge in % of full, 0 to 100
  ChargeLevel = 7,    ///< [capacity_level] text: Critical, Low, Normal, High, Full, Unknown
  Temperature = 8,    ///< [temp] battery temperature in 0.1 °C, signed
  NominalAvailableCapacity = 9,  ///< [charge_now] charge available now in µAh
  FullChargeCapacity = 10,       ///< [charge_full] charge when full in µAh
  CycleCount = 11,               ///< [cycle_count] charge cycles so far
  PowerAverage = 12,             ///< [power_avg] average power in µW, signed
  Health = 13,                   ///< [health] text, such as Good, Overheat, Dead, Unknown
  TimeToEmpty = 14,              ///< [time_to_empty_now] s until empty; none unless discharging
  LifetimeData = 15,  ///< [lifetime_data] the `LifetimeData` record, from a vendor's driver
  /// The value that a reset of LifetimeData writes. Read-only, and kept in memory.
  LifetimeDataResetValue = 16,
};

}  // namespace dral
