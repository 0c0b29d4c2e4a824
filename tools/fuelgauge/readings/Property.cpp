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
    {Id::Name, "Name", Type::String, Unit::None, true},
    {Id::Technology, "Technology", Type::String, Unit::None, false},
    {Id::Status, "Status", Type::String, Unit::None, false},
    {Id::Present, "Present", Type::Bool, Unit::None, false},
    {Id::VoltageNow, "VoltageNow", Type::Int, Unit::Microvolt, false},
    {Id::CurrentNow, "CurrentNow", Type::Int, Unit::Microampere, false},
    {Id::StateOfCharge, "StateOfCharge", Type::Int, Unit::Percent, false},
    {Id::ChargeLevel, "ChargeLevel", Type::String, Unit::None, true},
    {Id::Temperature, "Temperature", Type::Int, Unit::TenthDegreeCelsius, false},
    {Id::NominalAvailableCapacity, "NominalAvailableCapacity", Type::Int, Unit::MicroampereHour,
     true},
    {Id::FullChargeCapacity, "FullChargeCapacity", Type::Int, Unit::MicroampereHour, true},
    {Id::CycleCount, "CycleCount", Type::Int, Unit::None, true},
    {Id::PowerAverage, "PowerAverage", Type::Int, Unit::Microwatt, true},
    {Id::Health, "Health", Type::String, Unit::None, true},
    {Id::TimeToEmpty, "TimeToEmpty", Type::Int, Unit::Second, true},
    {Id::LifetimeData, "LifetimeData", Type::Lifetime, Unit::None, true},
    {Id::LifetimeDataResetValue, "LifetimeDataResetValue", Type::Lifetime, Unit::None, false},
}};

const Property& FindProperty(std::string_view name) {
  const auto* const found =
      std::find_if(Properties.begin(), Properties.end(),
                   [name](const Property& property) { return property.name == name; });
  if (found == Properties.end()) {
    throw UsageError("no property named '" + std::string(name) +
                     "'; 'fuelgauge get --help' lists them");
  }
  return *found;
}

}  // namespace fuelgauge
