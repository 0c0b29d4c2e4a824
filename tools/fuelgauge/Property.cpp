// SPDX-License-Identifier: MIT
#include "Property.hpp"

#include <algorithm>
#include <string>

#include "UsageError.hpp"

using Id = dral::FuelGaugeProperty;

const std::array<Property, 17> Properties = {{
    {Id::Name, "Name", std::string(), Unit::None},
    {Id::Technology, "Technology", std::string(), Unit::None},
    {Id::Status, "Status", std::string(), Unit::None},
    {Id::Present, "Present", false, Unit::None},
    {Id::VoltageNow, "VoltageNow", 0, Unit::Microvolt},
    {Id::CurrentNow, "CurrentNow", 0, Unit::Microampere},
    {Id::StateOfCharge, "StateOfCharge", 0, Unit::Percent},
    {Id::ChargeLevel, "ChargeLevel", std::string(), Unit::None},
    {Id::Temperature, "Temperature", 0, Unit::TenthDegreeCelsius},
    {Id::NominalAvailableCapacity, "NominalAvailableCapacity", 0, Unit::MicroampereHour},
    {Id::FullChargeCapacity, "FullChargeCapacity", 0, Unit::MicroampereHour},
    {Id::CycleCount, "CycleCount", 0, Unit::None},
    {Id::PowerAverage, "PowerAverage", 0, Unit::Microwatt},
    {Id::Health, "Health", std::string(), Unit::None},
    {Id::TimeToEmpty, "TimeToEmpty", 0, Unit::Second},
    {Id::LifetimeData, "LifetimeData", dral::LifetimeData(), Unit::None},
    {Id::LifetimeDataResetValue, "LifetimeDataResetValue", dral::LifetimeData(), Unit::None},
}};

const Property& FindProperty(std::string_view name) {
  const auto* const found =
      std::find_if(Properties.begin(), Properties.end(),
                   [name](const Property& property) { return property.name == name; });
  if (found == Properties.end()) {
    throw UsageError("no property named '" + std::string(name) +
                     "'; 'fuelgauge list' shows them all");
  }
  return *found;
}
