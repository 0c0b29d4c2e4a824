// SPDX-License-Identifier: MIT
#include "readings/Property.hpp"

#include <algorithm>
#include <string>

#include "readings/UsageError.hpp"

namespace fuelgauge {

using Id = dral::FuelGaugeProperty;

dral::PropertyValue Hint(Type type) {
  using dral::PropertyValue;
  switch (type) {
    case Type::Int:
      return PropertyValue(std::in_place_type<int>);
    case Type::Uint:
      return PropertyValue(std::in_place_type<unsigned int>);
    case Type::Bool:
      return PropertyValue(std::in_place_type<bool>);
    case Type::Lifetime:
      return PropertyValue(std::in_place_type<dral::LifetimeData>);
    default:
      return PropertyValue(std::in_place_type<std::string>);
  }
}

const std::array<Property, 17> Properties = {{
    {Id::Name, "Name", Type::String, Unit::None},
    {Id::Technology, "Technology", Type::String, Unit::None},
    {Id::Status, "Status", Type::String, Unit::None},
    {Id::Present, "Present", Type::Bool, Unit::None},
    {Id::VoltageNow, "VoltageNow", Type::Int, Unit::Microvolt},
    {Id::CurrentNow, "CurrentNow", Type::Int, Unit::Microampere},
    {Id::StateOfCharge, "StateOfCharge", Type::Int, Unit::Percent},
    {Id::ChargeLevel, "ChargeLevel", Type::String, Unit::None},
    {Id::Temperature, "Temperature", Type::Int, Unit::TenthDegreeCelsius},
    {Id::NominalAvailableCapacity, "NominalAvailableCapacity", Type::Int, Unit::MicroampereHour},
    {Id::FullChargeCapacity, "FullChargeCapacity", Type::Int, Unit::MicroampereHour},
    {Id::CycleCount, "CycleCount", Type::Int, Unit::None},
    {Id::PowerAverage, "PowerAverage", Type::Int, Unit::Microwatt},
    {Id::Health, "Health", Type::String, Unit::None},
    {Id::TimeToEmpty, "TimeToEmpty", Type::Int, Unit::Second},
    {Id::LifetimeData, "LifetimeData", Type::Lifetime, Unit::None},
    {Id::LifetimeDataResetValue, "LifetimeDataResetValue", Type::Lifetime, Unit::None},
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

}  // namespace fuelgauge
