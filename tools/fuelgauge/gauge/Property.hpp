// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeNames.hpp>
#include <PropertyValue.hpp>
#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "gauge/Units.hpp"

namespace fuelgauge {

/// The alternatives of `dral::PropertyValue`, in their order.
enum class Type { String, Int, Uint, Bool, Lifetime };

/// @return a value of @p type, to ask the library for one
dral::PropertyValue Hint(Type type);

/// The metric of a number or a state. A number is shown in Prometheus's base unit: times `factor`, divided
/// by ten to the `decimals`.
struct Metric {
  std::string_view name;  ///< behind "fuelgauge_"; empty: none of its own
  std::string_view help;
  std::size_t decimals = 0;
  int factor = 1;
};

/// What the tool knows of a property.
struct Property {
  dral::FuelGaugeProperty id;
  Type type;  ///< its natural one
  Unit unit;
  bool optional;  ///< a driver of a gauge in order may not offer its file
  Metric metric = {};
  std::span<const std::string_view> words = {};  ///< the kernel's, for a text that is one of them
  std::size_t series = words.size();             ///< so many of them always have a series
  std::string_view name = dral::NameOf(id);
};

/// In the order of their numbers; the reset value alone has no file.
extern const std::array<Property, dral::FuelGaugePropertyNames.size()> Properties;

/// @throws UsageError when there is none of that name
const Property& FindProperty(std::string_view name);

/// @return the names of those that are @p wanted, such as "VoltageNow, CurrentNow"
std::string PropertyNames(const std::function<bool(const Property&)>& wanted);

}  // namespace fuelgauge
