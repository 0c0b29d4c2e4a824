// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

#include "commands/CommandLine.hpp"
#include "output/Message.hpp"

namespace {

// Whether nobody reads the output any more, as after `fuelgauge list | head -1`: no fault of ours.
bool ReaderIsGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return ::poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

}  // namespace

int main(int argc, char** argv) {
  using fuelgauge::ExitStatus;
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // a file at its limit: the write says so
  ExitStatus status = fuelgauge::RunCommandLine(argc, argv);
  if (!std::cout.flush() && !ReaderIsGone()) {
    fuelgauge::Complain("the output could not be written");
    status = ExitStatus::OutputError;
  }
  return static_cast<int>(status);
}
