// SPDX-License-Identifier: MIT
#include <algorithm>

#include "Commands.hpp"
#include "Gauge.hpp"
#include "Presentation.hpp"
#include "Reading.hpp"
#include "Units.hpp"

namespace {

// What is worth saying beside a value: the raw number where people use another unit.
std::string Remark(dral::FuelGaugeIF& gauge, const Reading& reading) {
  const Property& property = *reading.property;
  if (!reading.Succeeded()) {
    return ExplainRead(gauge, property, property.natural, reading.status);
  }
  const auto number = Number(reading);
  const bool converted = property.unit != Unit::None && property.unit != Unit::Percent;
  return number && converted ? Raw(*number, property.unit) : "";
}

}  // namespace

ExitStatus List(dral::FuelGaugeIF& gauge, bool json) {
  const std::vector<Reading> readings = ReadAll(gauge);
  if (json) {
    Print(ToJson(readings));
  } else {
    for (const Reading& reading : readings) {
      PrintRow(reading.property->name, ForPeople(reading), Remark(gauge, reading));
      if (const auto* record = std::get_if<dral::LifetimeData>(&reading.value);
          record != nullptr && reading.Succeeded()) {
        PrintFields(*record);
      }
    }
  }
  if (!AnySucceeded(readings)) {
    Complain(NoGauge);
    return ToExitStatus(readings.front().status);
  }
  return ExitStatus::Success;
}
