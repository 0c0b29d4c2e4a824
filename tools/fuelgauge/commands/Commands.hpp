// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "gauge/Gauge.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {

/// What the options that all commands have name.
struct Request {
  std::vector<std::string> devices;  ///< none: the device's own gauge
  std::string lifetimeFile;

  /// @throws UsageError when there are several devices
  GaugeOptions One() const;
};

/// Carries a command out: writes the answer to standard output, and to standard error what went wrong. Throws
/// UsageError.
using Action = std::function<ExitStatus(const Request& request)>;

// Each adds the command's own options to its parser, and returns what it does with them. To add a command
// is to add its file, its function here and its row in CommandLine.cpp.
Action AddList(CLI::App& parser);
Action AddGet(CLI::App& parser);
Action AddSet(CLI::App& parser);
Action AddReset(CLI::App& parser);
Action AddWatch(CLI::App& parser);
Action AddMetrics(CLI::App& parser);
Action AddCheck(CLI::App& parser);
Action AddDevices(CLI::App& parser);

}  // namespace fuelgauge
