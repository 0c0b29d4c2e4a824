// SPDX-License-Identifier: MIT
#include "Visible.hpp"

#include <algorithm>
#include <cstddef>

namespace dral {
namespace {

// How many bytes of well-formed UTF-8 the character at the front of @p text has: 0 when it is none.
std::size_t CharacterLength(std::string_view text) {
  const auto byte = [text](std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
  };
  const auto within = [&byte](std::size_t at, unsigned least, unsigned greatest) {
    return byte(at) >= least && byte(at) <= greatest;
  };
  const unsigned first = byte(0);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length = first < 0xC2   ? 0
                             : first < 0xE0 ? 2
                             : first < 0xF0 ? 3
                             : first < 0xF5 ? 4
                                            : 0;
  // The second byte's limits leave out forms that are too long, surrogates and what is past U+10FFFF.
  const unsigned least = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
  const unsigned greatest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
  const bool whole = within(1, least, greatest) && (length < 3 || within(2, 0x80, 0xBF)) &&
                     (length < 4 || within(3, 0x80, 0xBF));
  return whole ? length : 0;
}

}  // namespace

std::string Visible(std::string_view text) {
  constexpr std::string_view Digits = "0123456789abcdef";
  std::string visible;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    const bool control = character < " " || character == "\x7f" ||
                         (character >= "\xc2\x80" && character <= "\xc2\x9f");
    if (length > 0 && !control) {
      visible += character;
    } else {
      for (const char byte : character) {
        const auto value = static_cast<unsigned char>(byte);
        visible.append("\\x").append({Digits[value >> 4U], Digits[value & 0xFU]});
      }
    }
    text.remove_prefix(character.size());
  }
  return visible;
}

}  // namespace dral
