// SPDX-License-Identifier: MIT
#include <memory>

#include "commands/Commands.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Table.hpp"

namespace fuelgauge {
namespace {

// What is worth saying beside a value: the raw number where people use another unit.
std::string Remark(const Gauge& gauge, const Reading& reading) {
  const Property& property = *reading.property;
  if (!reading.Succeeded()) {
    return gauge.ExplainRead(property, property.type, reading.status);
  }
  const auto number = reading.Number();
  const bool converted = property.unit != Unit::None && property.unit != Unit::Percent;
  return number && converted ? Raw(*number, property.unit) : "";
}

ExitStatus List(const Gauge& gauge, bool json) {
  const Readings readings = gauge.ReadAll();
  if (json) {
    Print(ToJson(readings));
  } else {
    for (const Reading& reading : readings) {
      PrintRow(reading.property->name, reading.ForPeople(), Remark(gauge, reading));
      if (const auto* record = reading.Record()) {
        PrintFields(*record);
      }
    }
  }
  if (!readings.AnySucceeded()) {
    Complain(NoGauge);
    return ToExitStatus(readings.begin()->status);
  }
  return ExitStatus::Success;
}

}  // namespace

Action AddList(CLI::App& parser) {
  const auto json = std::make_shared<bool>();
  parser.add_flag("--json", *json, "Answer in JSON");
  return [json](const GaugeOptions& which) { return List(Gauge(which), *json); };
}

}  // namespace fuelgauge
