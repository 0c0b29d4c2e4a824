// SPDX-License-Identifier: MIT
#include "output/Message.hpp"

#include <iostream>

namespace fuelgauge {

void Complain(std::string_view text) {
  std::cerr << "fuelgauge: " << text << "\n";
}

}  // namespace fuelgauge
