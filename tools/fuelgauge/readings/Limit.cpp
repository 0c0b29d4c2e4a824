// SPDX-License-Identifier: MIT
#include "readings/Limit.hpp"

#include <string>

#include "readings/Number.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {

Rule LimitOf(Bound bound, std::string_view text) {
  const auto equals = text.find('=');
  if (equals == 0 || equals == std::string_view::npos) {
    throw UsageError("'" + std::string(text) + "' is not PROPERTY=NUMBER");
  }
  const Property& property = FindProperty(text.substr(0, equals));
  const std::string name(property.name);
  if (property.type != Type::Int) {
    throw UsageError(name + " is not a number, and has no limits");
  }
  const std::string_view digits = text.substr(equals + 1);
  const auto number = WholeNumber<int>(digits);
  if (!number) {
    throw UsageError(name + ": '" + std::string(digits) + "' is not a whole number of 32 bits");
  }
  const int limit = *number;
  const bool least = bound == Bound::Minimum;
  return {least ? "minimum" : "maximum", Severity::Error,
          name + " must be at " + (least ? "least " : "most ") + Raw(limit, property.unit),
          [id = property.id, least, limit](const Readings& readings) {
            const auto number = readings.Number(id);
            const bool kept = number && (least ? *number >= limit : *number <= limit);
            return kept ? Evidence{} : Evidence{{id}, {}, true};
          }};
}

}  // namespace fuelgauge
