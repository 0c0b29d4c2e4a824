// SPDX-License-Identifier: MIT
#include "output/Message.hpp"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>
#include <string>
#include <system_error>
#include <utility>

#include "output/Text.hpp"

namespace fuelgauge {

void Complain(std::string_view text) {
  constexpr std::size_t Most = 1000;
  constexpr std::size_t End = 200;  // where the way out is told
  std::string line = TerminalSafe(text);
  if (line.size() > Most) {
    std::string_view end = std::string_view(line).substr(line.size() - End);
    end.remove_prefix(FirstCharacter(" " + std::string(end)).size() - 1);
    line = std::string(CutTo(Most - End, line)).append(" ... ").append(end);
  }
  std::cerr << "fuelgauge: " << line << "\n";
}

bool OutputIsOut() {
  errno = 0;
  const bool out = static_cast<bool>(std::cout.flush());
  const int error = errno;  // 0 when it failed before
  if (out || ReaderIsGone()) {
    return true;
  }
  static bool told = false;
  if (!std::exchange(told, true)) {
    Complain("the output could not be written" +
             (error == 0 ? "" : ": " + std::generic_category().message(error)));
  }
  return false;
}

bool ReaderIsGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return ::poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

}  // namespace fuelgauge
