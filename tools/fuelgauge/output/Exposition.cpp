// SPDX-License-Identifier: MIT
#include "output/Exposition.hpp"

#include <algorithm>

#include "gauge/Errors.hpp"
#include "output/MetricsText.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

void AddState(MetricsText& text, const Property& property, std::string_view now) {
  const auto series = property.words.first(property.series);
  for (const std::string_view state : series) {
    text.Add(property.metric, state == now ? 1 : 0, {{"state", state}});
  }
  if (std::find(series.begin(), series.end(), now) == series.end()) {
    text.Add(property.metric, 1, {{"state", now}});
  }
}

void AddValues(MetricsText& text, const Readings& readings, bool states) {
  for (const Reading& reading : readings) {
    const Property& property = *reading.property;
    if (property.metric.name.empty() || states == property.words.empty()) {
      continue;
    }
    if (const auto number = reading.Number()) {
      text.Add(property.metric, std::int64_t{*number} * property.metric.factor);
    } else if (const auto now = reading.Text()) {
      AddState(text, property, *now);
    }
  }
}

void AddInfo(MetricsText& text, const Readings& readings) {
  MetricsText::Labels labels;
  for (const auto& [label, id] :
       {std::pair("manufacturer", Name), std::pair("technology", Technology)}) {
    if (const auto word = readings.Text(id)) {
      labels.emplace_back(label, *word);
    }
  }
  if (!labels.empty()) {
    text.Add({"info", "What the gauge says of itself."}, 1, labels);
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
  for (const Reading& reading : readings) {
    const std::string_view property = reading.property->name;
    text.Add({"read_success", "Whether the property could be read."}, reading.Succeeded() ? 1 : 0,
             {{"property", property}});
    if (!reading.Succeeded()) {
      text.Add({"read_error", "Why the property could not be read."}, 1,
               {{"property", property}, {"error", ErrorOf(reading)}});
    }
  }
}

}  // namespace

std::string Exposition(const Judged& supplies) {
  MetricsText text;
  for (const auto& [name, judged] : supplies) {
    const auto& [readings, findings] = judged;
    text.Supply(name);
    AddInfo(text, readings);
    AddValues(text, readings, false);
    AddValues(text, readings, true);
    for (const LifetimeField& field : LifetimeFields) {
      if (const auto* record = readings.Record()) {
        text.Add(field.quantity.metric, field.Value(*record), {{"extreme", field.extreme}});
      }
    }
    AddReads(text, readings);
    for (const auto& [rule, evidence] : findings) {
      text.Add({"check_finding", "A rule that the readings break."}, 1,
               {{"rule", rule->name}, {"severity", NameOf(rule->severity)}});
    }
  }
  return text.Text();
}

}  // namespace fuelgauge
