// SPDX-License-Identifier: MIT
#include "output/Metrics.hpp"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "output/MetricsText.hpp"
#include "readings/Check.hpp"
#include "readings/Errors.hpp"
#include "readings/Words.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;
using Labels = MetricsText::Labels;

namespace {

// A number in the base unit: times `factor`, divided by ten to the `decimals`.
struct NumberMetric {
  dral::FuelGaugeProperty property;
  std::string_view name;
  std::string_view help;
  int decimals;
  int factor = 1;
};

// Charges are in coulombs: the convention asks for base units, and finds fault with hours in a name.
// Cycles only grow, until the gauge is replaced: a counter, whose reset Prometheus understands.
constexpr auto NumberMetrics = std::to_array<NumberMetric>({
    {Present, "present", "Whether a battery is present.", 0},
    {VoltageNow, "voltage_volts", "Battery voltage.", 6},
    {CurrentNow, "current_amperes",
     "Battery current with the kernel's sign: negative while discharging.", 6},
    {StateOfCharge, "charge_ratio", "Remaining charge, 0 to 1.", 2},
    {Temperature, "temperature_celsius", "Battery temperature.", 1},
    {NominalAvailableCapacity, "charge_available_coulombs",
     "Charge now available, not compensated for load and temperature.", 4, 36},
    {FullChargeCapacity, "charge_full_coulombs",
     "Charge when full, compensated for load and temperature.", 4, 36},
    {CycleCount, "cycles_total", "Charge cycles so far.", 0},
    {PowerAverage, "power_average_watts", "Average power.", 6},
    {TimeToEmpty, "time_to_empty_seconds", "Time until empty; none unless discharging.", 0},
});

struct StateMetric {
  dral::FuelGaugeProperty property;
  std::string_view name;
  std::string_view help;
  std::vector<std::string> states;
};

// The states that always have a series; another word that is read gets one too.
const std::vector<StateMetric> StateMetrics = {
    {Status,
     "status",
     "Charging status: 1 for the state that is.",
     {StatusWords.begin(), StatusWords.end()}},
    {ChargeLevel,
     "charge_level",
     "Charge level: 1 for the level that is.",
     {LevelWords.begin(), LevelWords.end()}},
    {Health,
     "health",
     "Battery health: 1 for the state that is.",
     {"Unknown", "Good", "Overheat", "Dead", "Over voltage", "Cold", "Calibration required"}},
};

void AddNumbers(MetricsText& text, const Readings& readings) {
  for (const NumberMetric& metric : NumberMetrics) {
    if (const auto number = readings.Number(metric.property)) {
      text.Family(metric.name, metric.help);
      text.Sample(std::int64_t{*number} * metric.factor, metric.decimals);
    }
  }
}

void AddStates(MetricsText& text, const Readings& readings) {
  for (const StateMetric& metric : StateMetrics) {
    const auto now = readings.Text(metric.property);
    if (!now) {
      continue;
    }
    std::vector<std::string> states = metric.states;
    if (std::find(states.begin(), states.end(), *now) == states.end()) {
      states.emplace_back(*now);
    }
    text.Family(metric.name, metric.help);
    for (const std::string& state : states) {
      text.Sample(state == *now ? 1 : 0, 0, {{"state", state}});
    }
  }
}

void AddRecord(MetricsText& text, const Readings& readings) {
  const auto* record = readings.Record();
  if (record == nullptr) {
    return;
  }
  text.Family("lifetime_temperature_celsius", "Extremes of the pack's temperature.");
  text.Sample(record->maxTemp, 1, {{"extreme", "max"}});
  text.Sample(record->minTemp, 1, {{"extreme", "min"}});
  text.Family("lifetime_pack_voltage_volts", "Extremes of the pack's voltage.");
  text.Sample(record->maxPackVoltage, 3, {{"extreme", "max"}});
  text.Sample(record->minPackVoltage, 3, {{"extreme", "min"}});
  text.Family("lifetime_current_amperes", "Extremes of the pack's current.");
  text.Sample(record->maxChargeCurrent, 3, {{"extreme", "max_charge"}});
  text.Sample(record->maxDischargeCurrent, 3, {{"extreme", "max_discharge"}});
}

void AddInfo(MetricsText& text, const Readings& readings) {
  Labels labels;
  if (const auto manufacturer = readings.Text(Name)) {
    labels.emplace_back("manufacturer", *manufacturer);
  }
  if (const auto technology = readings.Text(Technology)) {
    labels.emplace_back("technology", *technology);
  }
  if (!labels.empty()) {
    text.Family("info", "What the gauge says of itself.");
    text.Sample(1, 0, labels);
  }
}

// The errno's name, or what was read instead of a value.
std::string ErrorOf(const Reading& reading) {
  if (reading.error != 0) {
    return ErrorName(reading.error);
  }
  if (!reading.refusal.empty()) {
    return "refused";
  }
  return reading.status == dral::FuelGaugeStatus::Failure ? "not understood" : "no data";
}

void AddReads(MetricsText& text, const Readings& readings) {
  text.Family("read_success", "Whether the property could be read.");
  for (const Reading& reading : readings) {
    text.Sample(reading.Succeeded() ? 1 : 0, 0,
                {{"property", std::string(reading.property->name)}});
  }
  for (const Reading& reading : readings) {
    if (!reading.Succeeded()) {
      text.Family("read_error", "Why the property could not be read.");
      text.Sample(1, 0,
                  {{"property", std::string(reading.property->name)}, {"error", ErrorOf(reading)}});
    }
  }
}

void AddFindings(MetricsText& text, const Readings& readings) {
  for (const Finding& finding : Check(readings)) {
    text.Family("check_finding", "A rule that the readings break.");
    text.Sample(
        1, 0,
        {{"rule", std::string(finding.rule->name)}, {"severity", NameOf(finding.rule->severity)}});
  }
}

}  // namespace

std::string MetricsOf(const std::map<std::string, Readings>& supplies) {
  MetricsText text;
  for (const auto& [name, readings] : supplies) {
    text.Supply(name);
    AddInfo(text, readings);
    AddNumbers(text, readings);
    AddStates(text, readings);
    AddRecord(text, readings);
    AddReads(text, readings);
    AddFindings(text, readings);
  }
  return text.Text();
}

}  // namespace fuelgauge
