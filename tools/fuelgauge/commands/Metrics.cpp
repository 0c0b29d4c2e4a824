// SPDX-License-Identifier: MIT
#include "output/Metrics.hpp"

#include <iostream>
#include <map>
#include <memory>
#include <optional>

#include "commands/Commands.hpp"
#include "output/Message.hpp"
#include "output/OutputFile.hpp"
#include "output/Text.hpp"
#include "readings/Supplies.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {
namespace {

struct MetricsOptions {
  bool all = false;
  std::optional<std::string> output;
};

std::vector<GaugeOptions> Gauges(const GaugeOptions& which, bool all) {
  if (!all && which.devices.empty()) {
    return {which};
  }
  std::vector<GaugeOptions> gauges;
  for (const std::string& device : all ? Batteries() : which.devices) {
    gauges.push_back({{device}, which.lifetimeFile});
  }
  return gauges;
}

ExitStatus Metrics(const GaugeOptions& which, const MetricsOptions& options) {
  if (options.all && !which.devices.empty()) {
    throw UsageError("--all cannot be combined with --device");
  }
  ExitStatus status = ExitStatus::Success;
  std::map<std::string, Readings> supplies;
  for (const GaugeOptions& each : Gauges(which, options.all)) {
    const Gauge gauge(each);
    const std::string name = TerminalSafe(gauge.SupplyName());  // as the label has it
    if (!supplies.emplace(name, gauge.ReadAll()).second) {
      if (!options.all) {
        throw UsageError("--device: two have the name '" + name + "'");
      }
      Complain("'" + name + "' was left out: another supply has the same name");
      status = ExitStatus::Failure;
    }
  }
  const std::string text = MetricsOf(supplies);
  try {
    if (options.output) {
      PutInPlace(*options.output, text);
    } else {
      std::cout << text;
    }
  } catch (const OutputError& error) {
    Complain(error.what());
    return ExitStatus::OutputError;
  }
  if (supplies.empty()) {
    Complain("no battery; " + SuppliesForPeople());
    return ExitStatus::FileError;
  }
  return status;
}

}  // namespace

Action AddMetrics(CLI::App& parser) {
  const auto options = std::make_shared<MetricsOptions>();
  parser.add_flag("--all", options->all, "Every battery of the kernel");
  parser
      .add_option("--output", options->output,
                  "Replace FILE atomically instead of printing; no link is followed")
      ->type_name("FILE")
      ->check(NotEmpty);
  return [options](const GaugeOptions& which) { return Metrics(which, *options); };
}

}  // namespace fuelgauge
