// SPDX-License-Identifier: MIT
#include "output/Text.hpp"

#include <nlohmann/json.hpp>

#include "output/Columns.hpp"

namespace fuelgauge {
namespace {

std::string ToUtf8(std::string_view text) {
  using Json = nlohmann::json;
  return Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
}

// Whether it steers a terminal, or the direction in which it shows what follows.
bool IsControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x061C ||
         character == 0x200E || character == 0x200F ||
         (character >= 0x2028 && character <= 0x202E) ||
         (character >= 0x2066 && character <= 0x2069);
}

char32_t CodePoint(std::string_view bytes) {
  const std::size_t countBits = bytes.size() == 1 ? 1 : bytes.size() + 1;  // they count the bytes
  char32_t code = static_cast<unsigned char>(bytes.front()) & (0xFFU >> countBits);
  for (const char byte : bytes.substr(1)) {
    code = (code << 6U) | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  return code;
}

}  // namespace

std::string TerminalSafe(std::string_view text) {
  constexpr std::string_view Digits = "0123456789abcdef";
  const std::string utf8 = ToUtf8(text);
  std::string safe;
  for (std::string_view rest = utf8; !rest.empty();) {
    const std::string_view character = FirstCharacter(rest);
    rest.remove_prefix(character.size());
    const char32_t code = CodePoint(character);
    if (!IsControl(code)) {
      safe.append(character);
      continue;
    }
    safe.append("\\u");
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
      safe.append(1, Digits[(code >> shift) & 0xFU]);
    }
  }
  return safe;
}

}  // namespace fuelgauge
