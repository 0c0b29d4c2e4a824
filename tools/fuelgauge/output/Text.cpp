// SPDX-License-Identifier: MIT
#include "output/Text.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>

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

// Not by wcwidth, which goes by the global locale. Bytes of UTF-8 are in the order of the characters.
std::size_t ColumnsOf(std::string_view character) {
  const auto within = [character](std::string_view first, std::string_view end) {
    return character >= first && character < end;
  };
  const bool narrow = character < "\u1100" || within("\u2000", "\u2300") ||  // punctuation, signs
                      within("\u2500", "\u25A0");                            // boxes, blocks
  return narrow ? 1 : 2;
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
      safe += character;
      continue;
    }
    safe += "\\u";
    for (const unsigned shift : {12U, 8U, 4U, 0U}) {
      safe += Digits[(code >> shift) & 0xFU];
    }
  }
  return safe;
}

std::string Quoted(std::string_view text, char escape) {
  std::string quoted = "\"";
  for (const char byte : TerminalSafe(text)) {
    quoted.append(byte == '"' || byte == escape ? 1 : 0, escape).append(1, byte);
  }
  return quoted + "\"";
}

std::string_view FirstCharacter(std::string_view text) {
  const auto* const next = std::find_if(text.begin() + 1, text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  });
  return text.substr(0, static_cast<std::size_t>(next - text.begin()));
}

std::size_t Columns(std::string_view text) {
  std::size_t columns = 0;
  for (; !text.empty(); text.remove_prefix(FirstCharacter(text).size())) {
    columns += ColumnsOf(FirstCharacter(text));
  }
  return columns;
}

std::string_view CutTo(std::size_t columns, std::string_view text) {
  std::string_view rest = text;
  while (!rest.empty() && ColumnsOf(FirstCharacter(rest)) <= columns) {
    columns -= ColumnsOf(FirstCharacter(rest));
    rest.remove_prefix(FirstCharacter(rest).size());
  }
  return text.substr(0, text.size() - rest.size());
}

}  // namespace fuelgauge
