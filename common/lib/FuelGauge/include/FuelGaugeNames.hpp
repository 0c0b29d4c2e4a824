// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"

namespace dral {

/// What a property is called.
struct FuelGaugePropertyRow {
  FuelGaugeProperty property;  ///< its enumerator
  std::string_view name;       ///< its enumerator's
  std::string_view attribute;  ///< its file's, in the folder of the device; empty when it has none
};

/// All properties, in the order of their numbers.
inline constexpr std::array<FuelGaugePropertyRow, 17> FuelGaugePropertyRows = {{
    {FuelGaugeProperty::Name, "Name", "manufacturer"},
    {FuelGaugeProperty::Technology, "Technology", "technology"},
    {FuelGaugeProperty::Status, "Status", "status"},
    {FuelGaugeProperty::Present, "Present", "present"},
    {FuelGaugeProperty::VoltageNow, "VoltageNow", "voltage_now"},
    {FuelGaugeProperty::CurrentNow, "CurrentNow", "current_now"},
    {FuelGaugeProperty::StateOfCharge, "StateOfCharge", "capacity"},
    {FuelGaugeProperty::ChargeLevel, "ChargeLevel", "capacity_level"},
    {FuelGaugeProperty::Temperature, "Temperature", "temp"},
    {FuelGaugeProperty::NominalAvailableCapacity, "NominalAvailableCapacity", "charge_now"},
    {FuelGaugeProperty::FullChargeCapacity, "FullChargeCapacity", "charge_full"},
    {FuelGaugeProperty::CycleCount, "CycleCount", "cycle_count"},
    {FuelGaugeProperty::PowerAverage, "PowerAverage", "power_avg"},
    {FuelGaugeProperty::Health, "Health", "health"},
    {FuelGaugeProperty::TimeToEmpty, "TimeToEmpty", "time_to_empty_now"},
    {FuelGaugeProperty::LifetimeData, "LifetimeData", "lifetime_data"},
    {FuelGaugeProperty::LifetimeDataResetValue, "LifetimeDataResetValue", ""},
}};

/// The names of the properties' enumerators, in the order of their numbers.
inline constexpr auto FuelGaugePropertyNames = [] {
  std::array<std::string_view, FuelGaugePropertyRows.size()> names;
  for (std::size_t number = 0; number < names.size(); ++number) {
    names[number] = FuelGaugePropertyRows[number].name;
  }
  return names;
}();

/// @return the enumerator's name; empty when there is no such property
constexpr std::string_view NameOf(FuelGaugeProperty property) {
  const auto number = static_cast<std::size_t>(property);
  return number < FuelGaugePropertyNames.size() ? FuelGaugePropertyNames[number] : "";
}

/// @return the enumerator's name; empty when there is no such status
constexpr std::string_view NameOf(FuelGaugeStatus status) {
  switch (status) {
    case FuelGaugeStatus::Success:
      return "Success";
    case FuelGaugeStatus::Failure:
      return "Failure";
    case FuelGaugeStatus::FileError:
      return "FileError";
    case FuelGaugeStatus::NoData:
      return "NoData";
  }
  return "";
}

/// @return the property whose enumerator has exactly this @p name, if there is one
constexpr std::optional<FuelGaugeProperty> PropertyNamed(std::string_view name) {
  for (std::size_t number = 0; number < FuelGaugePropertyNames.size(); ++number) {
    if (FuelGaugePropertyNames[number] == name) {
      return static_cast<FuelGaugeProperty>(number);
    }
  }
  return std::nullopt;
}

}  // namespace dral
