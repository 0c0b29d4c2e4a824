// SPDX-License-Identifier: MIT
#include "output/Text.hpp"

#include <nlohmann/json.hpp>

namespace fuelgauge {
namespace {

std::string ToUtf8(std::string_view text) {
  using Json = nlohmann::json;
  return Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
}

}  // namespace

std::string TerminalSafe(std::string_view text) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string safe;
  bool afterC2 = false;  // the first byte of U+0080 to U+00BF
  for (const char each : ToUtf8(text)) {
    const auto byte = static_cast<unsigned char>(each);
    const bool control = byte < 0x20U || byte == 0x7FU || (afterC2 && byte < 0xA0U);
    if (control) {
      if (afterC2) {
        safe.pop_back();
      }
      safe.append("\\u00").append(1, Digits[byte >> 4U]).append(1, Digits[byte & 0xFU]);
    } else {
      safe.append(1, each);
    }
    afterC2 = byte == 0xC2U;
  }
  return safe;
}

}  // namespace fuelgauge
