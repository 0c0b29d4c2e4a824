// SPDX-License-Identifier: MIT
#include "output/Exposition.hpp"

#include <algorithm>
#include <utility>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

using Labels = std::vector<std::pair<std::string_view, std::string_view>>;

// The families, each with its samples, whatever the order in which they come.
class Families {
 public:
  // Samples from now on are this supply's.
  void Supply(std::string_view name) { supply = name; }

  // Adds the number, divided by ten to the metric's decimals. A name that ends with "_total" is a counter's.
  void Add(const Metric& metric, std::int64_t number, const Labels& labels = {}) {
    const std::string name = Concat("fuelgauge_", metric.name);
    auto family = std::find_if(families.begin(), families.end(),
                               [&name](const auto& each) { return each.first == name; });
    if (family == families.end()) {
      const char* const type = name.ends_with("_total") ? " counter\n" : " gauge\n";
      family = families.insert(
          family, {name, Concat("# HELP ", name, " ", metric.help, "\n# TYPE ", name, type)});
    }
    std::string& text = family->second;
    text += Concat(name, "{power_supply=", Quoted(supply, '\\'));
    for (const auto& [label, value] : labels) {
      text += Concat(",", label, "=", Quoted(value, '\\'));
    }
    std::string digits = Decimal(number, metric.decimals);
    if (metric.decimals > 0) {
      digits.erase(digits.find_last_not_of('0') + 1);
      digits.erase(digits.find_last_not_of('.') + 1);
    }
    text += Concat("} ", digits, "\n");
  }

  std::string Text() const {
    std::string all;
    for (const auto& [name, text] : families) {
      all += text;
    }
    return all;
  }

 private:
  std::string supply;
  std::vector<std::pair<std::string, std::string>> families;  // their names and texts
};

void AddState(Families& families, const Property& property, std::string_view now) {
  const auto series = property.words.first(property.series);
  for (const std::string_view state : series) {
    families.Add(property.metric, state == now ? 1 : 0, {{"state", state}});
  }
  if (std::find(series.begin(), series.end(), now) == series.end()) {
    families.Add(property.metric, 1, {{"state", now}});
  }
}

void AddValues(Families& families, const Readings& readings, bool states) {
  for (const Reading& reading : readings) {
    const Property& property = *reading.property;
    if (property.metric.name.empty() || states == property.words.empty()) {
      continue;
    }
    if (const auto number = reading.Number()) {
      families.Add(property.metric, std::int64_t{*number} * property.metric.factor);
    } else if (const auto* now = reading.Text()) {
      AddState(families, property, *now);
    }
  }
}

void AddInfo(Families& families, const Readings& readings) {
  Labels labels;
  for (const auto& [label, id] :
       {std::pair("manufacturer", Name), std::pair("technology", Technology)}) {
    if (const auto* word = readings[id].Text()) {
      labels.emplace_back(label, *word);
    }
  }
  if (!labels.empty()) {
    families.Add({"info", "What the gauge says of itself."}, 1, labels);
  }
}

// The errno's name, or what was read instead of a value.
std::string ErrorOf(const Reading& reading) {
  return reading.error != 0                                 ? ErrorName(reading.error)
         : !reading.refusal.empty()                         ? "refused"
         : reading.status == dral::FuelGaugeStatus::Failure ? "not understood"
                                                            : "no data";
}

void AddReads(Families& families, const Readings& readings) {
  for (const Reading& reading : readings) {
    const std::string_view property = reading.property->name;
    families.Add({"read_success", "Whether the property could be read."},
                 reading.Succeeded() ? 1 : 0, {{"property", property}});
    if (!reading.Succeeded()) {
      families.Add({"read_error", "Why the property could not be read."}, 1,
                   {{"property", property}, {"error", ErrorOf(reading)}});
    }
  }
}

}  // namespace

std::string Exposition(const Judged& supplies) {
  Families families;
  for (const auto& [name, judged] : supplies) {
    const auto& [readings, findings] = judged;
    families.Supply(name);
    AddInfo(families, readings);
    AddValues(families, readings, false);
    AddValues(families, readings, true);
    for (const LifetimeField& field : LifetimeFields) {
      if (const auto* record = readings[LifetimeData].Record()) {
        families.Add(field.quantity.metric, field.Value(*record), {{"extreme", field.extreme}});
      }
    }
    AddReads(families, readings);
    for (const auto& [rule, evidence] : findings) {
      families.Add({"check_finding", "A rule that the readings break."}, 1,
                   {{"rule", rule->name}, {"severity", NameOf(rule->severity)}});
    }
  }
  return families.Text();
}

}  // namespace fuelgauge
