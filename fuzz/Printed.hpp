// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iostream>
#include <sstream>

#include "Target.hpp"
#include "output/Json.hpp"

/// @return what is printed to @p stream meanwhile; nothing in it steers a terminal, whatever @p print shows
inline std::istringstream Printed(const std::function<void()>& print,
                                  std::ostream& stream = std::cout) {
  std::stringbuf text;
  auto* const before = stream.rdbuf(&text);
  print();
  stream.rdbuf(before);
  (void)fuelgauge::Json(text.str()).dump();  // throws on what is no UTF-8
  unsigned char last = 0;
  for (const char each : text.str()) {
    const auto byte = static_cast<unsigned char>(each);
    const bool c1 = last == 0xC2 && byte < 0xA0;
    Require((byte >= 0x20 || each == '\n') && byte != 0x7F && !c1);
    last = byte;
  }
  return std::istringstream(text.str());
}
