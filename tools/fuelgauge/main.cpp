// SPDX-License-Identifier: MIT
#include <csignal>
#include <cstdio>

#include "commands/CommandLine.hpp"
#include "output/Message.hpp"

int main(int argc, char** argv) {
  using fuelgauge::ExitStatus;
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // a file at its limit: the write says so
  // What a command prints goes out at its end, or with each sample: only then is it known why it cannot.
  static_cast<void>(std::setvbuf(stdout, nullptr, _IOFBF, 65536));
  ExitStatus status = fuelgauge::RunCommandLine(argc, argv);
  if (!fuelgauge::OutputIsOut() && status == ExitStatus::Success) {  // else the worse news
    status = ExitStatus::OutputError;
  }
  return static_cast<int>(status);
}
