// SPDX-License-Identifier: MIT
#include "output/Message.hpp"

#include <iostream>

#include "output/Text.hpp"

namespace fuelgauge {

void Complain(std::string_view text) {
  std::cerr << "fuelgauge: " << TerminalSafe(text) << "\n";
}

}  // namespace fuelgauge
