// SPDX-License-Identifier: MIT
#include "gauge/LifetimeField.hpp"

#include <type_traits>

#include "gauge/Concat.hpp"
#include "gauge/Number.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {

using Record = dral::LifetimeData;

namespace {

constexpr LifetimeQuantity PackTemperature = {
    Unit::TenthDegreeCelsius,
    Record::LifetimeMinTemp,
    Record::LifetimeMaxTemp,
    {"lifetime_temperature_celsius", "Extremes of the pack's temperature.", 1}};
constexpr LifetimeQuantity PackVoltage = {
    Unit::Millivolt,
    0,
    32767,
    {"lifetime_pack_voltage_volts", "Extremes of the pack's voltage.", 3}};
constexpr LifetimeQuantity PackCurrent = {
    Unit::Milliampere,
    Record::LifetimeMinCurrent,
    Record::LifetimeMaxCurrent,
    {"lifetime_current_amperes", "Extremes of the pack's current.", 3}};

}  // namespace

constinit const std::array<LifetimeField, 6> LifetimeFields = {{
    {"maxTemp", &Record::maxTemp, PackTemperature, "max"},
    {"minTemp", &Record::minTemp, PackTemperature, "min"},
    {"maxPackVoltage", &Record::maxPackVoltage, PackVoltage, "max"},
    {"minPackVoltage", &Record::minPackVoltage, PackVoltage, "min"},
    {"maxChargeCurrent", &Record::maxChargeCurrent, PackCurrent, "max_charge"},
    {"maxDischargeCurrent", &Record::maxDischargeCurrent, PackCurrent, "max_discharge"},
}};

const std::array<std::pair<const LifetimeField*, const LifetimeField*>, 2> LifetimeRanges = {
    {{&LifetimeFields[1], LifetimeFields.data()}, {&LifetimeFields[3], &LifetimeFields[2]}}};

int LifetimeField::Value(const Record& data) const {
  return std::visit([&data](auto pointer) { return int{data.*pointer}; }, member);
}

void LifetimeField::Store(Record& data, int value) const {
  std::visit(
      [&data, value](auto pointer) {
        data.*pointer = static_cast<std::remove_reference_t<decltype(data.*pointer)>>(value);
      },
      member);
}

int LifetimeField::Parse(std::string_view text) const {
  const auto value = WholeNumber<int>(text);
  if (!value || !Allows(*value)) {
    throw UsageError(Concat(name, ": '", text, "' is not a whole number from ", quantity.least,
                            " to ", quantity.most));
  }
  return *value;
}

const LifetimeField& FindField(std::string_view name) {
  std::string names;
  for (const LifetimeField& field : LifetimeFields) {
    if (field.name == name) {
      return field;
    }
    names.append(names.empty() ? "" : ", ").append(field.name);
  }
  throw UsageError(Concat("no field named '", name, "'; the fields are ", names));
}

void Assign(Record& data, std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string_view::npos) {
    throw UsageError(Concat("'", assignment, "': write it as FIELD=VALUE, such as maxTemp=550"));
  }
  const LifetimeField& field = FindField(assignment.substr(0, equals));
  field.Store(data, field.Parse(assignment.substr(equals + 1)));
}

void RefuseCrossed(const Record& data, const std::set<std::string>& named) {
  for (const auto& [minimum, maximum] : LifetimeRanges) {
    if (minimum->Value(data) > maximum->Value(data) &&
        (named.contains(std::string(minimum->name)) ||
         named.contains(std::string(maximum->name)))) {
      throw UsageError(Concat(minimum->name, " ", minimum->Value(data), " would be above ",
                              maximum->name, " ", maximum->Value(data)));
    }
  }
}

}  // namespace fuelgauge
