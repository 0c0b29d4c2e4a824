// SPDX-License-Identifier: MIT
#pragma once

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
