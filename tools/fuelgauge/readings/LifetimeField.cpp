// SPDX-License-Identifier: MIT
#include "readings/LifetimeField.hpp"

#include <string>
#include <type_traits>

#include "readings/Number.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {

const std::array<LifetimeField, 6> LifetimeFields = {{
    {"maxTemp", Unit::TenthDegreeCelsius, &dral::LifetimeData::maxTemp,
     dral::LifetimeData::LifetimeMinTemp, dral::LifetimeData::LifetimeMaxTemp},
    {"minTemp", Unit::TenthDegreeCelsius, &dral::LifetimeData::minTemp,
     dral::LifetimeData::LifetimeMinTemp, dral::LifetimeData::LifetimeMaxTemp},
    {"maxPackVoltage", Unit::Millivolt, &dral::LifetimeData::maxPackVoltage, 0, 0x7FFF},
    {"minPackVoltage", Unit::Millivolt, &dral::LifetimeData::minPackVoltage, 0, 0x7FFF},
    {"maxChargeCurrent", Unit::Milliampere, &dral::LifetimeData::maxChargeCurrent,
     dral::LifetimeData::LifetimeMinCurrent, dral::LifetimeData::LifetimeMaxCurrent},
    {"maxDischargeCurrent", Unit::Milliampere, &dral::LifetimeData::maxDischargeCurrent,
     dral::LifetimeData::LifetimeMinCurrent, dral::LifetimeData::LifetimeMaxCurrent},
}};

const std::array<std::pair<const LifetimeField*, const LifetimeField*>, 2> LifetimeRanges = {
    {{&LifetimeFields[1], LifetimeFields.data()}, {&LifetimeFields[3], &LifetimeFields[2]}}};

int LifetimeField::Value(const dral::LifetimeData& data) const {
  return std::visit([&data](auto pointer) { return int{data.*pointer}; }, member);
}

void LifetimeField::Store(dral::LifetimeData& data, int value) const {
  std::visit(
      [&data, value](auto pointer) {
        data.*pointer = static_cast<std::remove_reference_t<decltype(data.*pointer)>>(value);
      },
      member);
}

int LifetimeField::Parse(std::string_view text) const {
  const auto value = WholeNumber<int>(text);
  if (!value || !Allows(*value)) {
    throw UsageError(std::string(name) + ": '" + std::string(text) +
                     "' is not a whole number from " + std::to_string(least) + " to " +
                     std::to_string(most));
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
  throw UsageError("no field named '" + std::string(name) + "'; the fields are " + names);
}

void Assign(dral::LifetimeData& data, std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string_view::npos) {
    throw UsageError("'" + std::string(assignment) +
                     "': write it as FIELD=VALUE, such as maxTemp=550");
  }
  const LifetimeField& field = FindField(assignment.substr(0, equals));
  field.Store(data, field.Parse(assignment.substr(equals + 1)));
}

void RefuseCrossed(const dral::LifetimeData& data, const std::set<std::string>& named) {
  const auto text = [&data](const LifetimeField& field) {
    return std::string(field.name) + " " + std::to_string(field.Value(data));
  };
  for (const auto& [minimum, maximum] : LifetimeRanges) {
    if (minimum->Value(data) > maximum->Value(data) &&
        (named.contains(std::string(minimum->name)) ||
         named.contains(std::string(maximum->name)))) {
      throw UsageError(text(*minimum) + " would be above " + text(*maximum));
    }
  }
}

}  // namespace fuelgauge
