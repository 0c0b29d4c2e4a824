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

/// All of them in the order of their numbers; the last, the reset value, has no file.
extern const std::array<Property, 17> Properties;

/// @throws UsageError when there is none of that name
const Property& FindProperty(std::string_view name);

}  // namespace fuelgauge
