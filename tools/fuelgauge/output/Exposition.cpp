// SPDX-License-Identifier: MIT
#include "output/Exposition.hpp"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "gauge/Errors.hpp"
#include "output/MetricsText.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

void AddState(MetricsText& text, const Property& property, std::string_view now) {
  text.Family(property.metric);
  const auto series = property.words.first(property.series);
  std::vector<std::string_view> states(series.begin(), series.end());
  if (std::find(states.begin(), states.end(), now) == states.end()) {
    states.push_back(now);
  }
  for (const std::string_view state : states) {
    text.Sample(state == now ? 1 : 0, {{"state", std::string(state)}});
  }
}

void AddValues(MetricsText& text, const Readings& readings, bool states) {
  for (const Reading& reading : readings) {
    const Property& property = *reading.property;
    if (property.metric.name.empty() || states == property.words.empty()) {
      continue;
    }
    if (const auto number = reading.Number()) {
      text.Family(property.metric);
      text.Sample(std::int64_t{*number} * property.metric.factor);
    } else if (const auto now = reading.Text()) {
      AddState(text, property, *now);
    }
  }
}

void AddRecord(MetricsText& text, const Readings& readings) {
  const auto* const record = readings.Record();
  for (const LifetimeField& field : LifetimeFields) {
    if (record != nullptr) {
      text.Family(field.quantity.metric);
      text.Sample(field.Value(*record), {{"extreme", std::string(field.extreme)}});
    }
  }
}

void AddInfo(MetricsText& text, const Readings& readings) {
  MetricsText::Labels labels;
  if (const auto manufacturer = readings.Text(Name)) {
    labels.emplace_back("manufacturer", *manufacturer);
  }
  if (const auto technology = readings.Text(Technology)) {
    labels.emplace_back("technology", *technology);
  }
  if (!labels.empty()) {
    text.Family({"info", "What the gauge says of itself."});
    text.Sample(1, labels);
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
  text.Family({"read_success", "Whether the property could be read."});
  for (const Reading& reading : readings) {
    text.Sample(reading.Succeeded() ? 1 : 0, {{"property", std::string(reading.property->name)}});
  }
  for (const Reading& reading : readings) {
    if (!reading.Succeeded()) {
      text.Family({"read_error", "Why the property could not be read."});
      text.Sample(1,
                  {{"property", std::string(reading.property->name)}, {"error", ErrorOf(reading)}});
    }
  }
}

void AddFindings(MetricsText& text, const std::vector<Finding>& findings) {
  for (const auto& [rule, evidence] : findings) {
    text.Family({"check_finding", "A rule that the readings break."});
    text.Sample(1, {{"rule", std::string(rule->name)}, {"severity", NameOf(rule->severity)}});
  }
}

}  // namespace

std::string Exposition(const Judged& supplies) {
  MetricsText text;
  for (const auto& [name, judged] : supplies) {
    text.Supply(name);
    AddInfo(text, judged.readings);
    AddValues(text, judged.readings, false);
    AddValues(text, judged.readings, true);
    AddRecord(text, judged.readings);
    AddReads(text, judged.readings);
    AddFindings(text, judged.findings);
  }
  return text.Text();
}

}  // namespace fuelgauge
