// SPDX-License-Identifier: MIT
#include "Decimal.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <stdexcept>
#include <system_error>

namespace dral {
namespace {

struct Decimal {
  bool negative;
  std::uint64_t magnitude;
};

Decimal Parse(std::string_view text, const char* name) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  std::uint64_t magnitude = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), magnitude);
  if (result.ec == std::errc::invalid_argument) {
    throw std::invalid_argument(name);
  }
  if (result.ec == std::errc::result_out_of_range) {
    throw std::out_of_range(name);
  }
  return {negative, magnitude};
}

}  // namespace

std::int32_t DecimalToInt32(std::string_view text) {
  constexpr std::int64_t Max = std::numeric_limits<std::int32_t>::max();
  const auto [negative, magnitude] = Parse(text, "stoi");
  if (magnitude > static_cast<std::uint64_t>(negative ? Max + 1 : Max)) {
    throw std::out_of_range("stoi");
  }
  const auto value = static_cast<std::int64_t>(magnitude);
  return static_cast<std::int32_t>(negative ? -value : value);
}

std::uint64_t DecimalToUint64(std::string_view text) {
  const auto [negative, magnitude] = Parse(text, "stoul");
  return negative ? 0 - magnitude : magnitude;
}

}  // namespace dral
