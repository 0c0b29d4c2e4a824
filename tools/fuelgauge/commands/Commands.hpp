// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "commands/ExitStatus.hpp"
#include "readings/Gauge.hpp"

namespace fuelgauge {

/// Carries a command out on the gauge that the options before it name: writes the answer to standard
/// output, and to standard error what went wrong. Throws UsageError.
using Action = std::function<ExitStatus(const GaugeOptions& which)>;

/// One of the tool's commands.
struct Command {
  const char* name;
  const char* description;
  /// Adds the command's own options to its @p parser, and returns what it does with them.
  Action (*add)(CLI::App& parser);
};

/// All of them. To add one is to add its file, its function here and its line in the table.
extern const std::vector<Command> Commands;

/// Refuses an empty name, as from a script's unset variable: it must not mean the real gauge, or no file.
inline std::string NotEmpty(const std::string& name) {
  return name.empty() ? "the name is empty" : "";
}

Action AddList(CLI::App& parser);
Action AddGet(CLI::App& parser);
Action AddSet(CLI::App& parser);
Action AddReset(CLI::App& parser);
Action AddWatch(CLI::App& parser);
Action AddMetrics(CLI::App& parser);
Action AddCheck(CLI::App& parser);
Action AddDevices(CLI::App& parser);

}  // namespace fuelgauge
