// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"

namespace dral {

/// The names of the properties' enumerators, in the order of their numbers.
inline constexpr std::array<std::string_view, 17> FuelGaugePropertyNames = {
    "Name",
    "Technology",
    "Status",
    "Present",
    "VoltageNow",
    "CurrentNow",
    "StateOfCharge",
    "ChargeLevel",
    "Temperature",
    "NominalAvailableCapacity",
    "FullChargeCapacity",
    "CycleCount",
    "PowerAverage",
    "Health",
    "TimeToEmpty",
    "LifetimeData",
    "LifetimeDataResetValue",
};

/// @return the enumerator's name; empty when there is no such property
constexpr std::string_view NameOf(FuelGaugeProperty property) {
  const auto number = static_cast<std::size_t>(property);
  return number < FuelGaugePropertyNames.size() ? FuelGaugePropertyNames[number] : "";
}

static_assert(NameOf(FuelGaugeProperty::LifetimeDataResetValue) == "LifetimeDataResetValue");

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
