// SPDX-License-Identifier: MIT
#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace fuelgauge {

/// @return the @p parts in one text; numbers are decimal, whatever the global locale
template <typename... Parts>
std::string Concat(const Parts&... parts) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  (text << ... << parts);
  return text.str();
}

}  // namespace fuelgauge
