// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace dral {

// The standard library's stoi and stoul, but the same on every host: the unsigned one has 64 bits
// where `long` has 32, and neither asks the locale what white space is. White space and one sign
// may precede the digits; anything may follow them.

/// @throws std::invalid_argument, std::out_of_range with the text "stoi"
std::int32_t DecimalToInt32(std::string_view text);

/// A minus sign negates modulo 2^64.
/// @throws std::invalid_argument, std::out_of_range with the text "stoul"
std::uint64_t DecimalToUint64(std::string_view text);

}  // namespace dral
