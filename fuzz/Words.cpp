// SPDX-License-Identifier: MIT
// The words of a command line, a line each, behind a command that writes nothing: it ends with a status of its own, and
// what it says of them steers no terminal. And any bytes as a message of the kernel's about a device.
#include "Target.hpp"
#include "commands/CommandLine.hpp"
#include "watching/Events.hpp"

using fuelgauge::ExitStatus;

void Target(const std::string& input) {
  std::istringstream lines(input);
  std::string line;
  std::getline(lines, line);
  fuelgauge::Concerns(input, line);
  if (input.find("--output") != input.npos) {
    return;  // which names a file that is to be replaced
  }
  constexpr const char* Commands[] = {"list", "get", "check", "devices", "metrics"};
  std::vector<std::string> words = {"fuelgauge", Commands[line.size() % std::size(Commands)]};
  while (std::getline(lines, line)) {
    words.emplace_back(line.c_str());
  }
  std::vector<char*> pointers;
  for (std::string& word : words) {
    pointers.push_back(word.data());
  }
  ExitStatus status{};
  const auto run = [&] {
    status = fuelgauge::RunCommandLine(static_cast<int>(pointers.size()), pointers.data());
  };
  Printed([&] { Printed(run); }, std::cerr);
  Require(status <= ExitStatus::NoData || status == ExitStatus::Usage);
}
