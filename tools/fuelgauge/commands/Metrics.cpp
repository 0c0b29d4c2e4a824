// SPDX-License-Identifier: MIT
#include "output/Metrics.hpp"

#include <iostream>
#include <memory>

#include "commands/Commands.hpp"
#include "output/Message.hpp"
#include "output/OutputFile.hpp"

namespace fuelgauge {
namespace {

ExitStatus Metrics(const Gauge& gauge, const std::optional<std::string>& output) {
  const std::string text = MetricsOf(gauge.ReadAll());
  if (!output) {
    std::cout << text;
    return ExitStatus::Success;
  }
  try {
    OutputFile(*output).Write(text);
    return ExitStatus::Success;
  } catch (const OutputError& error) {
    Complain(error.what());
    return ExitStatus::OutputError;
  }
}

}  // namespace

Action AddMetrics(CLI::App& parser) {
  const auto output = std::make_shared<std::optional<std::string>>();
  parser
      .add_option("--output", *output,
                  "Put the text in place as this file, whole; links are followed")
      ->type_name("FILE")
      ->check(NotEmpty);
  return [output](const GaugeOptions& which) { return Metrics(Gauge(which), *output); };
}

}  // namespace fuelgauge
