// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeProperty.hpp>
#include <PropertyValue.hpp>
#include <array>
#include <string_view>

#include "Units.hpp"

/// What the tool knows of a property: its name, its natural type and its unit.
struct Property {
  dral::FuelGaugeProperty id;
  std::string_view name;
  dral::PropertyValue natural;
  Unit unit;
};

/// All of them in the order of their numbers; the last, the reset value, has no file.
extern const std::array<Property, 17> Properties;

/// @throws UsageError when there is none of that name
const Property& FindProperty(std::string_view name);
