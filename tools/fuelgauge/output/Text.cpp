// SPDX-License-Identifier: MIT
#include "output/Text.hpp"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace fuelgauge {

std::string ToUtf8(const std::string& text) {
  using Json = nlohmann::json;
  return Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::string Printable(std::string_view text) {
  constexpr std::size_t Most = 60;
  std::string printable(text.substr(0, Most));
  std::replace_if(
      printable.begin(), printable.end(),
      [](char byte) { return static_cast<unsigned char>(byte) < 0x20U || byte == 0x7F; }, '?');
  return text.size() > Most ? printable + "..." : printable;
}

}  // namespace fuelgauge
