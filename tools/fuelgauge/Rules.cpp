// SPDX-License-Identifier: MIT
#include "Rules.hpp"

#include <algorithm>
#include <cstdlib>
#include <sstream>

using enum dral::FuelGaugeProperty;
using Readings = std::vector<Reading>;

namespace {

// The number, or one that breaks no rule when it was not read.
int Of(const Readings& readings, dral::FuelGaugeProperty id, int otherwise) {
  return Number(::Of(readings, id)).value_or(otherwise);
}

bool Says(const Readings& readings, dral::FuelGaugeProperty id, std::string_view word) {
  return Text(::Of(readings, id)) == word;
}

const dral::LifetimeData* Record(const Readings& readings) {
  const Reading& reading = ::Of(readings, LifetimeData);
  return reading.Succeeded() ? std::get_if<dral::LifetimeData>(&reading.value) : nullptr;
}

bool AllOnes(const Readings& readings) {
  return Of(readings, StateOfCharge, 0) == 65535 || Of(readings, CycleCount, 0) == 65535 ||
         Of(readings, VoltageNow, 0) == 65535000;
}

// A temperature register of 0 kelvin shows as -2731.
bool AllZero(const Readings& readings) {
  return Of(readings, Temperature, 0) == -2731 || Of(readings, VoltageNow, 1) == 0;
}

bool WrongSign(const Readings& readings) {
  const int current = Of(readings, CurrentNow, 0);
  return (current < 0 && Says(readings, Status, "Charging")) ||
         (current > 0 && Says(readings, Status, "Discharging"));
}

// The two differ by up to a dozen points on healthy gauges: only one charge is compensated for load.
bool ChargesDisagree(const Readings& readings) {
  const double full = Of(readings, FullChargeCapacity, 0);
  const double now = Of(readings, NominalAvailableCapacity, -1);
  const int percent = Of(readings, StateOfCharge, -1);
  return full > 0 && now >= 0 && percent >= 0 && std::abs(100 * now / full - percent) > 25;
}

// Below a tenth of a watt the register counts too coarsely to judge.
bool PowerTooLarge(const Readings& readings) {
  const double watts = 1e-12 * Of(readings, VoltageNow, 0) * Of(readings, CurrentNow, 0);
  return std::abs(watts) > 0.1 && std::abs(1e-6 * Of(readings, PowerAverage, 0) / watts) > 5;
}

bool RecordCrossed(const Readings& readings) {
  const auto* record = Record(readings);
  return record != nullptr &&
         (record->minTemp > record->maxTemp || record->minPackVoltage > record->maxPackVoltage);
}

bool RecordInvalid(const Readings& readings) {
  const auto* record = Record(readings);
  if (record == nullptr) {
    return false;
  }
  dral::LifetimeData repaired = *record;
  repaired.Validate();
  return repaired.ToString() != record->ToString();
}

// A file that is there and cannot be read. One that is not there is a driver that does not offer it.
bool Unreadable(const Readings& readings) {
  return std::any_of(readings.begin(), readings.end(), [&](const Reading& reading) {
    const bool expected =
        reading.property->id == TimeToEmpty && !Says(readings, Status, "Discharging");
    return !reading.Succeeded() && reading.cause != dral::FuelGaugeStatus::FileError && !expected;
  });
}

bool HealthNotGood(const Readings& readings) {
  const auto health = Text(::Of(readings, Health));
  return health && *health != "Good" && *health != "Unknown";
}

}  // namespace

const std::vector<Rule> Rules = {
    {"all-ones",
     "error",
     "registers read all ones: nothing answers on the bus",
     {StateOfCharge, VoltageNow, CycleCount},
     AllOnes},
    {"all-zero",
     "error",
     "registers read zero: the chip is not ready, or not there",
     {VoltageNow, Temperature},
     AllZero},
    {"no-battery",
     "error",
     "the kernel sees no battery, or its bus is dead",
     {Present},
     [](const Readings& readings) { return Of(readings, Present, 1) == 0; }},
    {"charge-range",
     "error",
     "a charge is from 0 to 100 %: a register was misread",
     {StateOfCharge},
     [](const Readings& readings) {
       const int percent = Of(readings, StateOfCharge, 0);
       return percent < 0 || percent > 100;
     }},
    {"below-absolute-zero",
     "error",
     "no temperature is below -273.1 °C",
     {Temperature},
     [](const Readings& readings) { return Of(readings, Temperature, 0) < -2731; }},
    {"temperature-range",
     "error",
     "the gauge measures from -60 to 140 °C: its sensor is broken",
     {Temperature},
     [](const Readings& readings) {
       const int tenths = Of(readings, Temperature, 0);
       return tenths < dral::LifetimeData::LifetimeMinTemp ||
              tenths > dral::LifetimeData::LifetimeMaxTemp;
     }},
    {"current-sign",
     "warning",
     "the current flows the other way than the status says: some kernels turn the sign",
     {Status, CurrentNow},
     WrongSign},
    {"charges-disagree",
     "warning",
     "the charge in % is far from what the charges say: the gauge wants a learning cycle",
     {StateOfCharge, NominalAvailableCapacity, FullChargeCapacity},
     ChargesDisagree},
    {"power-scale",
     "warning",
     "the power is far above voltage times current: the driver counts 10 mW where the chip counts "
     "1",
     {PowerAverage, VoltageNow, CurrentNow},
     PowerTooLarge},
    {"record-crossed",
     "warning",
     "a minimum of the lifetime record is above its maximum",
     {LifetimeData},
     RecordCrossed},
    {"record-invalid",
     "warning",
     "the lifetime record holds values beyond its limits",
     {LifetimeData},
     RecordInvalid},
    {"unreadable",
     "error",
     "values that should be there cannot be read; 'list' tells which",
     {},
     Unreadable},
    {"health",
     "notice",
     "the gauge reports that the battery is not well (Dead is also raised by low charge)",
     {Health},
     HealthNotGood},
};
