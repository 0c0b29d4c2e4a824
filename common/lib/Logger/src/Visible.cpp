// SPDX-License-Identifier: MIT
#include "Visible.hpp"

namespace dral {

std::string Visible(std::string_view text) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string visible;
  for (const char each : text) {
    const auto byte = static_cast<unsigned char>(each);
    if (byte >= 0x20 && byte < 0x7F) {
      visible += each;
    } else {
      visible.append("\\x").append({Digits[byte >> 4U], Digits[byte & 0xFU]});
    }
  }
  return visible;
}

}  // namespace dral
