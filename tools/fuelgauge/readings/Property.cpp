// SPDX-License-Identifier: MIT
#include "readings/Property.hpp"

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
    {Id::Name, Type::String, Unit::None, true},
    {Id::Technology, Type::String, Unit::None, false},
    {Id::Status, Type::String, Unit::None, false},
    {Id::Present, Type::Bool, Unit::None, false},
    {Id::VoltageNow, Type::Int, Unit::Microvolt, false},
    {Id::CurrentNow, Type::Int, Unit::Microampere, false},
    {Id::StateOfCharge, Type::Int, Unit::Percent, false},
    {Id::ChargeLevel, Type::String, Unit::None, true},
    {Id::Temperature, Type::Int, Unit::TenthDegreeCelsius, false},
    {Id::NominalAvailableCapacity, Type::Int, Unit::MicroampereHour, true},
    {Id::FullChargeCapacity, Type::Int, Unit::MicroampereHour, true},
    {Id::CycleCount, Type::Int, Unit::None, true},
    {Id::PowerAverage, Type::Int, Unit::Microwatt, true},
    {Id::Health, Type::String, Unit::None, true},
    {Id::TimeToEmpty, Type::Int, Unit::Second, true},
    {Id::LifetimeData, Type::Lifetime, Unit::None, true},
    {Id::LifetimeDataResetValue, Type::Lifetime, Unit::None, false},
}};

const Property& FindProperty(std::string_view name) {
  const auto id = dral::PropertyNamed(name);
  if (!id) {
    throw UsageError("no property named '" + std::string(name) +
                     "'; 'fuelgauge get --help' lists them");
  }
  return Properties.at(static_cast<std::size_t>(*id));
}

}  // namespace fuelgauge
