// SPDX-License-Identifier: MIT
#include <memory>

#include "commands/Commands.hpp"
#include "output/Json.hpp"
#include "output/Table.hpp"
#include "output/Text.hpp"

namespace fuelgauge {
namespace {

using enum dral::FuelGaugeProperty;

ExitStatus Devices(bool json) {
  Json answer = Json::object();
  for (const Supply& supply : Batteries()) {
    const std::string name = supply.Name();
    const Readings readings = Gauge({name}).ReadAll();
    for (const auto id : {Name, Status, StateOfCharge}) {
      answer[name][std::string(readings[id].property->name)] = ToJson(readings[id]);
    }
    if (!json) {
      PrintRow(TerminalSafe(name), readings[Name].ForPeople(),
               PadTo(14, readings[Status].ForPeople()) + readings[StateOfCharge].ForPeople());
    }
  }
  if (json) {
    Print(answer);
  }
  if (answer.empty()) {
    throw ToolError(ExitStatus::FileError, "no battery; " + SuppliesForPeople());
  }
  return ExitStatus::Success;
}

}  // namespace

Action AddDevices(CLI::App& parser) {
  const auto json = std::make_shared<bool>();
  parser.add_flag("--json", *json, "Answer in JSON");
  return [json](const Request& request) {
    if (!request.devices.empty() || !request.lifetimeFile.empty()) {
      throw UsageError(
          "'devices' lists all batteries: it takes no --device and no --lifetime-file");
    }
    return Devices(*json);
  };
}

}  // namespace fuelgauge
