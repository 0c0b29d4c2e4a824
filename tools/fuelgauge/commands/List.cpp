// SPDX-License-Identifier: MIT
#include <cerrno>
#include <iostream>
#include <memory>
#include <string_view>

#include "commands/Commands.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Table.hpp"

namespace fuelgauge {
namespace {

// What is worth saying beside a value: the raw number where people use another unit.
std::string Remark(const Reading& reading) {
  if (!reading.Succeeded()) {
    return reading.Reason();
  }
  const auto number = reading.Number();
  const Unit& unit = reading.property->unit;
  return number && unit != units::None && unit != units::Percent ? Raw(*number, unit) : "";
}

ExitStatus List(const Gauge& gauge, bool json) {
  const Readings readings = gauge.ReadAll();
  if (json) {
    Print(ToJson(readings));
  } else if (gauge.TheSupply().Absence().empty()) {
    const std::string_view energy = readings.EnergyRemark();
    for (const Reading& reading : readings) {
      if (!energy.empty() && reading.error == ENOENT) {
        continue;
      }
      PrintRow(reading.property->name, reading.ForPeople(), Remark(reading));
      if (const auto* record = reading.Record()) {
        PrintFields(*record);
      }
    }
    if (!energy.empty()) {
      std::cout << energy << "\n";
    }
  }
  if (!readings.AnySucceeded()) {
    Complain(gauge.Missing(readings));
    return ToExitStatus(readings.Telling().status);
  }
  return ExitStatus::Success;
}

}  // namespace

Action AddList(CLI::App& parser) {
  const auto json = std::make_shared<bool>();
  parser.add_flag("--json", *json, "Answer in JSON");
  return [json](const Request& request) { return List(Gauge(request.One()), *json); };
}

}  // namespace fuelgauge
