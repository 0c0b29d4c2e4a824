// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include "Commands.hpp"
#include "MetricsText.hpp"
#include "Presentation.hpp"
#include "Reading.hpp"

using dral::FuelGaugeProperty;
using dral::LifetimeData;
using Labels = MetricsText::Labels;

namespace {

// A number in the base unit: times `factor`, divided by ten to the `decimals`.
struct NumberMetric {
  FuelGaugeProperty property;
  std::string_view name;
  std::string_view type;
  std::string_view help;
  int factor;
  int decimals;
};

// Charges are in coulombs: the convention asks for base units, and finds fault with hours in a name.
// Cycles only grow, until the gauge is replaced: a counter, whose reset Prometheus understands.
constexpr std::array NumberMetrics = {
    NumberMetric{FuelGaugeProperty::Present, "present", "gauge", "Whether a battery is present.", 1,
                 0},
    NumberMetric{FuelGaugeProperty::VoltageNow, "voltage_volts", "gauge", "Battery voltage.", 1, 6},
    NumberMetric{FuelGaugeProperty::CurrentNow, "current_amperes", "gauge",
                 "Battery current with the kernel's sign: negative while discharging.", 1, 6},
    NumberMetric{FuelGaugeProperty::StateOfCharge, "charge_ratio", "gauge",
                 "Remaining charge, 0 to 1.", 1, 2},
    NumberMetric{FuelGaugeProperty::Temperature, "temperature_celsius", "gauge",
                 "Battery temperature.", 1, 1},
    NumberMetric{FuelGaugeProperty::NominalAvailableCapacity, "charge_available_coulombs", "gauge",
                 "Charge now available, not compensated for load and temperature.", 36, 4},
    NumberMetric{FuelGaugeProperty::FullChargeCapacity, "charge_full_coulombs", "gauge",
                 "Charge when full, compensated for load and temperature.", 36, 4},
    NumberMetric{FuelGaugeProperty::CycleCount, "cycles_total", "counter", "Charge cycles so far.",
                 1, 0},
    NumberMetric{FuelGaugeProperty::PowerAverage, "power_average_watts", "gauge", "Average power.",
                 1, 6},
    NumberMetric{FuelGaugeProperty::TimeToEmpty, "time_to_empty_seconds", "gauge",
                 "Time until empty; none unless discharging.", 1, 0},
};

struct StateMetric {
  FuelGaugeProperty property;
  std::string_view name;
  std::string_view help;
  std::vector<std::string> states;
};

// The kernel's words; another one that is read gets a series too.
const std::array StateMetrics = {
    StateMetric{FuelGaugeProperty::Status,
                "status",
                "Charging status: 1 for the state that is.",
                {"Unknown", "Charging", "Discharging", "Not charging", "Full"}},
    StateMetric{FuelGaugeProperty::ChargeLevel,
                "charge_level",
                "Charge level: 1 for the level that is.",
                {"Unknown", "Critical", "Low", "Normal", "High", "Full"}},
    StateMetric{
        FuelGaugeProperty::Health,
        "health",
        "Battery health: 1 for the state that is.",
        {"Unknown", "Good", "Overheat", "Dead", "Over voltage", "Cold", "Calibration required"}},
};

void AddNumbers(MetricsText& text, const std::vector<Reading>& readings) {
  for (const NumberMetric& metric : NumberMetrics) {
    if (const auto number = Number(Of(readings, metric.property))) {
      text.Family(metric.name, metric.type, metric.help);
      text.Sample(std::int64_t{*number} * metric.factor, metric.decimals);
    }
  }
}

void AddStates(MetricsText& text, const std::vector<Reading>& readings) {
  for (const StateMetric& metric : StateMetrics) {
    const auto now = Text(Of(readings, metric.property));
    if (!now) {
      continue;
    }
    std::vector<std::string> states = metric.states;
    if (std::find(states.begin(), states.end(), *now) == states.end()) {
      states.push_back(*now);
    }
    text.Family(metric.name, "gauge", metric.help);
    for (const std::string& state : states) {
      text.Sample(state == *now ? 1 : 0, 0, {{"state", state}});
    }
  }
}

void AddRecord(MetricsText& text, const std::vector<Reading>& readings) {
  const Reading& reading = Of(readings, FuelGaugeProperty::LifetimeData);
  const auto* record = std::get_if<LifetimeData>(&reading.value);
  if (record == nullptr || !reading.Succeeded()) {
    return;
  }
  text.Family("lifetime_temperature_celsius", "gauge", "Extremes of the pack's temperature.");
  text.Sample(record->maxTemp, 1, {{"extreme", "max"}});
  text.Sample(record->minTemp, 1, {{"extreme", "min"}});
  text.Family("lifetime_pack_voltage_volts", "gauge", "Extremes of the pack's voltage.");
  text.Sample(record->maxPackVoltage, 3, {{"extreme", "max"}});
  text.Sample(record->minPackVoltage, 3, {{"extreme", "min"}});
  text.Family("lifetime_current_amperes", "gauge", "Extremes of the pack's current.");
  text.Sample(record->maxChargeCurrent, 3, {{"extreme", "max_charge"}});
  text.Sample(record->maxDischargeCurrent, 3, {{"extreme", "max_discharge"}});
}

void AddInfo(MetricsText& text, const std::vector<Reading>& readings) {
  Labels labels;
  if (const auto manufacturer = Text(Of(readings, FuelGaugeProperty::Name))) {
    labels.emplace_back("manufacturer", *manufacturer);
  }
  if (const auto technology = Text(Of(readings, FuelGaugeProperty::Technology))) {
    labels.emplace_back("technology", *technology);
  }
  if (!labels.empty()) {
    text.Family("info", "gauge", "What the gauge says of itself.");
    text.Sample(1, 0, labels);
  }
}

void AddReads(MetricsText& text, const std::vector<Reading>& readings) {
  text.Family("read_success", "gauge", "Whether the property could be read.");
  for (const Reading& reading : readings) {
    text.Sample(reading.Succeeded() ? 1 : 0, 0,
                {{"property", std::string(reading.property->name)}});
  }
  text.Family("read_status", "gauge",
              "How the read ended: 0 read, 2 not understood, 3 no such file, 4 no data.");
  for (const Reading& reading : readings) {
    text.Sample(static_cast<int>(reading.cause), 0,
                {{"property", std::string(reading.property->name)}});
  }
}

// Puts the file in place whole, so that nobody reads half of it. The temporary one's name does not end
// in .prom: the textfile collector passes it over.
ExitStatus Replace(const std::string& path, const std::string& text) {
  std::string temporary = path + ".XXXXXX";
  const int file = ::mkstemp(temporary.data());
  bool written = file >= 0 && ::fchmod(file, 0644) == 0 &&
                 ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  written = (file >= 0 && ::close(file) == 0) && written;
  if (!written || std::rename(temporary.c_str(), path.c_str()) != 0) {
    const int error = errno;
    if (file >= 0) {
      ::unlink(temporary.c_str());
    }
    Complain("'" + path + "' cannot be written: " + std::strerror(error));
    return ExitStatus::OutputError;
  }
  return ExitStatus::Success;
}

}  // namespace

ExitStatus Metrics(dral::FuelGaugeIF& gauge, const std::string& output) {
  const std::vector<Reading> readings = ReadAll(gauge);
  MetricsText text;
  AddInfo(text, readings);
  AddNumbers(text, readings);
  AddStates(text, readings);
  AddRecord(text, readings);
  AddReads(text, readings);
  if (!output.empty()) {
    return Replace(output, text.Text());
  }
  std::cout << text.Text();
  return ExitStatus::Success;
}
