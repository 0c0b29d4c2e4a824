// SPDX-License-Identifier: MIT
#include "judging/Limit.hpp"

#include "gauge/Concat.hpp"
#include "gauge/Number.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {

Rule LimitOf(Bound bound, std::string_view text) {
  const auto equals = text.find('=');
  if (equals == 0 || equals == std::string_view::npos) {
    throw UsageError(Concat("'", text, "' is not PROPERTY=NUMBER"));
  }
  const Property& property = FindProperty(text.substr(0, equals));
  if (property.type != Type::Int) {
    throw UsageError(Concat(property.name, " is not a number, and has no limits"));
  }
  const std::string_view digits = text.substr(equals + 1);
  const auto limit = WholeNumber<int>(digits);
  if (!limit) {
    throw UsageError(Concat(property.name, ": '", digits, "' is not a whole number of 32 bits"));
  }
  const bool least = bound == Bound::Minimum;
  return {
      least ? "minimum" : "maximum", Severity::Error,
      Concat(property.name, " must be at ", least ? "least " : "most ", Raw(*limit, property.unit)),
      [id = property.id, least, limit = *limit](const Readings& readings) {
        const auto number = readings.Number(id);
        const bool kept = number && (least ? *number >= limit : *number <= limit);
        return kept ? Evidence{} : Evidence{{&readings[id]}, {}, true};
      }};
}

}  // namespace fuelgauge
