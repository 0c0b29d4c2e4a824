// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeNames.hpp>
#include <PropertyValue.hpp>
#include <array>
#include <string_view>

#include "readings/Units.hpp"

namespace fuelgauge {

/// The alternatives of `dral::PropertyValue`, in their order.
enum class Type { String, Int, Uint, Bool, Lifetime };

/// @return a value of @p type, to ask the library for one
dral::PropertyValue Hint(Type type);

/// What the tool knows of a property.
struct Property {
  dral::FuelGaugeProperty id;
  Type type;  ///< its natural one
  Unit unit;
  bool optional;  ///< a driver of a gauge in order may not offer its file
  std::string_view name = dral::NameOf(id);
};

/// All of them in the order of their numbers; the reset value alone has no file.
inline constexpr auto Properties = std::to_array<Property>({
    {dral::FuelGaugeProperty::Name, Type::String, Unit::None, true},
    {dral::FuelGaugeProperty::Technology, Type::String, Unit::None, false},
    {dral::FuelGaugeProperty::Status, Type::String, Unit::None, false},
    {dral::FuelGaugeProperty::Present, Type::Bool, Unit::None, false},
    {dral::FuelGaugeProperty::VoltageNow, Type::Int, Unit::Microvolt, false},
    {dral::FuelGaugeProperty::CurrentNow, Type::Int, Unit::Microampere, false},
    {dral::FuelGaugeProperty::StateOfCharge, Type::Int, Unit::Percent, false},
    {dral::FuelGaugeProperty::ChargeLevel, Type::String, Unit::None, true},
    {dral::FuelGaugeProperty::Temperature, Type::Int, Unit::TenthDegreeCelsius, false},
    {dral::FuelGaugeProperty::NominalAvailableCapacity, Type::Int, Unit::MicroampereHour, true},
    {dral::FuelGaugeProperty::FullChargeCapacity, Type::Int, Unit::MicroampereHour, true},
    {dral::FuelGaugeProperty::CycleCount, Type::Int, Unit::None, true},
    {dral::FuelGaugeProperty::PowerAverage, Type::Int, Unit::Microwatt, true},
    {dral::FuelGaugeProperty::Health, Type::String, Unit::None, true},
    {dral::FuelGaugeProperty::TimeToEmpty, Type::Int, Unit::Second, true},
    {dral::FuelGaugeProperty::LifetimeData, Type::Lifetime, Unit::None, true},
    {dral::FuelGaugeProperty::LifetimeDataResetValue, Type::Lifetime, Unit::None, false},
});

static_assert(Properties.size() == dral::FuelGaugePropertyNames.size());

/// @throws UsageError when there is none of that name
const Property& FindProperty(std::string_view name);

}  // namespace fuelgauge
