// SPDX-License-Identifier: MIT
#include <csignal>
#include <iostream>

#include "commands/CommandLine.hpp"
#include "output/Message.hpp"

int main(int argc, char** argv) {
  using fuelgauge::ExitStatus;
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // a file at its limit: the write says so
  ExitStatus status = fuelgauge::RunCommandLine(argc, argv);
  if (!std::cout.flush() && !fuelgauge::ReaderIsGone()) {
    fuelgauge::Complain("the output could not be written");
    status = ExitStatus::OutputError;
  }
  return static_cast<int>(status);
}
