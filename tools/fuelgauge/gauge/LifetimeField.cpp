// SPDX-License-Identifier: MIT
#include "gauge/LifetimeField.hpp"

#include <type_traits>

namespace fuelgauge {

using Record = dral::LifetimeData;

namespace {

constexpr LifetimeQuantity PackTemperature = {
    units::TenthDegreeCelsius,
    Record::LifetimeMinTemp,
    Record::LifetimeMaxTemp,
    {"lifetime_temperature_celsius", "Extremes of the pack's temperature.", 1}};
constexpr LifetimeQuantity PackVoltage = {
    units::Millivolt,
    0,
    32767,
    {"lifetime_pack_voltage_volts", "Extremes of the pack's voltage.", 3}};
constexpr LifetimeQuantity PackCurrent = {
    units::Milliampere,
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

}  // namespace fuelgauge
