// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace fuelgauge {

/// Refuses an empty name, as from a script's unset variable: it must not mean the real gauge, or no file.
inline std::string NotEmpty(const std::string& name) {
  return name.empty() ? "the name is empty" : "";
}

}  // namespace fuelgauge
