// SPDX-License-Identifier: MIT
#include "readings/LifetimeField.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>
#include <system_error>

#include "readings/UsageError.hpp"

namespace fuelgauge {

using dral::LifetimeData;

const std::array<LifetimeField, 6> LifetimeFields = {{
    {"maxTemp", Unit::TenthDegreeCelsius, &LifetimeData::maxTemp},
    {"minTemp", Unit::TenthDegreeCelsius, &LifetimeData::minTemp},
    {"maxPackVoltage", Unit::Millivolt, &LifetimeData::maxPackVoltage},
    {"minPackVoltage", Unit::Millivolt, &LifetimeData::minPackVoltage},
    {"maxChargeCurrent", Unit::Milliampere, &LifetimeData::maxChargeCurrent},
    {"maxDischargeCurrent", Unit::Milliampere, &LifetimeData::maxDischargeCurrent},
}};

int LifetimeField::Value(const LifetimeData& data) const {
  return std::visit([&data](auto pointer) { return int{data.*pointer}; }, member);
}

namespace {

[[noreturn]] void Refuse(std::string_view assignment, const std::string& reason) {
  throw UsageError("'" + std::string(assignment) + "': " + reason);
}

template <typename T>
void AssignTo(T& field, std::string_view value, std::string_view assignment) {
  const char* const end = value.data() + value.size();
  const auto result = std::from_chars(value.data(), end, field);
  // Too large comes first: such a number has all its digits read.
  if (result.ec == std::errc::result_out_of_range) {
    using Limits = std::numeric_limits<T>;
    Refuse(assignment, "the value must be from " + std::to_string(Limits::min()) + " to " +
                           std::to_string(Limits::max()));
  }
  if (result.ec != std::errc() || result.ptr != end) {
    Refuse(assignment,
           "'" + std::string(value) + "' is not a whole number that the field can hold");
  }
}

}  // namespace

void Assign(LifetimeData& data, std::string_view assignment) {
  const std::size_t equals = assignment.find('=');
  if (equals == std::string_view::npos) {
    Refuse(assignment, "write it as FIELD=VALUE, such as maxTemp=550");
  }
  const std::string_view name = assignment.substr(0, equals);
  const auto* const field =
      std::find_if(LifetimeFields.begin(), LifetimeFields.end(),
                   [name](const LifetimeField& candidate) { return candidate.name == name; });
  if (field == LifetimeFields.end()) {
    std::string names;
    for (const LifetimeField& each : LifetimeFields) {
      names.append(names.empty() ? "" : ", ").append(each.name);
    }
    Refuse(assignment, "no field named '" + std::string(name) + "'; the fields are " + names);
  }
  std::visit(
      [&](auto pointer) {
        auto value = data.*pointer;
        AssignTo(value, assignment.substr(equals + 1), assignment);
        data.*pointer = value;
      },
      field->member);
}

}  // namespace fuelgauge
