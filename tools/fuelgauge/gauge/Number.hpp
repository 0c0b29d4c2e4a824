// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace fuelgauge {

/// @return the whole number that a user wrote: decimal, whatever zeros it begins with, and nothing else;
///         none when it is no number or does not fit
template <typename Integer>
std::optional<Integer> WholeNumber(std::string_view text) {
  Integer number = 0;
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

}  // namespace fuelgauge
