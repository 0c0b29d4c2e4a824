// SPDX-License-Identifier: MIT
#include <iostream>
#include <memory>
#include <optional>

#include "commands/Commands.hpp"
#include "commands/NotEmpty.hpp"
#include "gauge/Concat.hpp"
#include "output/Exposition.hpp"
#include "output/Message.hpp"
#include "output/OutputFile.hpp"
#include "output/Text.hpp"

namespace fuelgauge {
namespace {

struct MetricsOptions {
  bool all = false;
  std::optional<std::string> output;
};

ExitStatus Metrics(const Request& request, const MetricsOptions& options) {
  if (options.all && !request.devices.empty()) {
    throw UsageError("--all cannot be combined with --device");
  }
  std::vector<std::string> devices = request.devices;
  for (const Supply& supply : options.all ? Batteries() : std::vector<Supply>()) {
    if (!supply.IsOfDevice()) {
      devices.push_back(supply.Name());
    }
  }
  if (devices.empty() && !options.all) {
    devices.push_back(GaugeOptions().device);
  }
  ExitStatus status = ExitStatus::Success;
  Judged supplies;
  for (const std::string& device : devices) {
    const Gauge gauge({device, request.lifetimeFile});
    if (gauge.TheSupply().IsNamed() && !gauge.TheSupply().Absence().empty()) {
      Complain(gauge.TheSupply().Absence());
    }
    const std::string name = TerminalSafe(gauge.TheSupply().Name());  // as the label has it
    if (!supplies.contains(name)) {
      Readings readings = gauge.ReadAll();
      std::vector<Finding> findings = Findings(readings);
      supplies.insert({name, {std::move(readings), std::move(findings)}});
    } else if (options.all) {
      Complain(Concat("'", name, "' was left out: another supply has the same name"));
      status = ExitStatus::Failure;
    } else {
      throw UsageError(Concat("--device: two have the name '", name, "'"));
    }
  }
  const std::string text = Exposition(supplies);
  if (options.output) {
    PutInPlace(*options.output, text);
  } else {
    std::cout << text;
  }
  if (supplies.empty()) {
    throw ToolError(ExitStatus::FileError, "no battery; " + SuppliesForPeople());
  }
  return status;
}

}  // namespace

Action AddMetrics(CLI::App& parser) {
  const auto options = std::make_shared<MetricsOptions>();
  parser.add_flag("--all", options->all, "Every battery of the system");
  parser
      .add_option("--output", options->output,
                  "Replace FILE atomically instead of printing; no link is followed")
      ->type_name("FILE")
      ->check(NotEmpty);
  return [options](const Request& request) { return Metrics(request, *options); };
}

}  // namespace fuelgauge
