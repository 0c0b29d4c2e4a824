// SPDX-License-Identifier: MIT
// Included once by each fuzz target.
#pragma once

#include <LogOutput.hpp>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

/// What each fuzz target defines: it must come back, whatever the input.
void Target(const std::string& input);

/// Ends the program, which the fuzzer reports, when a promise is broken.
inline void Require(bool promise) {
  if (!promise) {
    std::abort();
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dral::LogOutput::SetLevel(dral::LogLevel{0});
  Target(std::string(data, data + size));
  return 0;
}
