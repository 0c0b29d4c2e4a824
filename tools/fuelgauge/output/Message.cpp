// SPDX-License-Identifier: MIT
#include "output/Message.hpp"

#include <poll.h>
#include <unistd.h>

#include <iostream>

#include "output/Text.hpp"

namespace fuelgauge {

void Complain(std::string_view text) {
  std::cerr << "fuelgauge: " << TerminalSafe(text) << "\n";
}

bool ReaderIsGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return ::poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

}  // namespace fuelgauge
