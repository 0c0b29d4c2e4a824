// SPDX-License-Identifier: MIT
// Included once by each fuzz target.
#pragma once

#include <LogOutput.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <sstream>
#include <string>

#include "output/Json.hpp"

/// What each fuzz target defines: it must come back, whatever the input.
void Target(const std::string& input);

/// Ends the program, which the fuzzer reports, when a promise is broken.
inline void Require(bool promise) {
  if (!promise) {
    std::abort();
  }
}

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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dral::LogOutput::SetLevel(dral::LogLevel{0});
  Target(std::string(data, data + size));
  return 0;
}
