// SPDX-License-Identifier: MIT
#include "output/Columns.hpp"

#include <algorithm>

namespace fuelgauge {
namespace {

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

std::string_view FirstCharacter(std::string_view text) {
  const auto* const next = std::find_if(text.begin() + 1, text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  });
  return text.substr(0, static_cast<std::size_t>(next - text.begin()));
}

std::size_t Columns(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    const std::string_view character = FirstCharacter(text);
    columns += ColumnsOf(character);
    text.remove_prefix(character.size());
  }
  return columns;
}

std::string_view CutTo(std::size_t columns, std::string_view text) {
  std::size_t end = 0;
  while (end < text.size()) {
    const std::string_view character = FirstCharacter(text.substr(end));
    const std::size_t wanted = ColumnsOf(character);
    if (wanted > columns) {
      break;
    }
    columns -= wanted;
    end += character.size();
  }
  return text.substr(0, end);
}

}  // namespace fuelgauge
