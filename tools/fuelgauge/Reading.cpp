// SPDX-License-Identifier: MIT
#include "Reading.hpp"

#include <algorithm>
#include <variant>

#include "Units.hpp"

std::vector<Reading> ReadAll(dral::FuelGaugeIF& gauge) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (property.id != dral::FuelGaugeProperty::LifetimeDataResetValue) {  // it has no file
      auto [status, value] = gauge.Get(property.id, property.natural);
      readings.push_back({&property, status, std::move(value)});
    }
  }
  return readings;
}

std::vector<Reading> ReadAllWithCauses(dral::FuelGaugeIF& gauge) {
  std::vector<Reading> readings = ReadAll(gauge);
  for (Reading& reading : readings) {
    if (reading.status == dral::FuelGaugeStatus::Failure) {
      const auto status = gauge.Get<std::string>(reading.property->id).first;
      // A text that is there and is no number, or has come back since, stays a failure.
      reading.status = status == dral::FuelGaugeStatus::Success ? reading.status : status;
    }
  }
  return readings;
}

const Reading& Of(const std::vector<Reading>& readings, dral::FuelGaugeProperty id) {
  return *std::find_if(readings.begin(), readings.end(),
                       [id](const Reading& reading) { return reading.property->id == id; });
}

bool AnySucceeded(const std::vector<Reading>& readings) {
  return std::any_of(readings.begin(), readings.end(), std::mem_fn(&Reading::Succeeded));
}

std::optional<int> Number(const Reading& reading) {
  if (!reading.Succeeded()) {
    return std::nullopt;
  }
  if (const bool* flag = std::get_if<bool>(&reading.value)) {
    return *flag ? 1 : 0;
  }
  const int* number = std::get_if<int>(&reading.value);
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

std::optional<std::string> Text(const Reading& reading) {
  const std::string* text = std::get_if<std::string>(&reading.value);
  return text != nullptr && reading.Succeeded() ? std::optional(*text) : std::nullopt;
}

std::string ForPeople(const Reading& reading) {
  if (!reading.Succeeded()) {
    return "-";
  }
  if (const auto text = Text(reading)) {
    return *text;
  }
  if (std::holds_alternative<bool>(reading.value)) {
    return *Number(reading) != 0 ? "yes" : "no";
  }
  const auto number = Number(reading);
  return number ? ForPeople(*number, reading.property->unit) : "";
}
