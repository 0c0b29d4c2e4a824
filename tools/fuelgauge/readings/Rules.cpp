// SPDX-License-Identifier: MIT
#include "readings/Rules.hpp"

#include <algorithm>
#include <cstdlib>

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

// The number, or one that breaks no rule when it was not read.
int NumberOr(const Readings& readings, dral::FuelGaugeProperty id, int otherwise) {
  return readings.Number(id).value_or(otherwise);
}

bool Says(const Readings& readings, dral::FuelGaugeProperty id, std::string_view word) {
  return readings.Text(id) == word;
}

bool AllOnes(const Readings& readings) {
  return NumberOr(readings, StateOfCharge, 0) == 65535 ||
         NumberOr(readings, CycleCount, 0) == 65535 ||
         NumberOr(readings, VoltageNow, 0) == 65535000;
}

// A temperature register of 0 kelvin shows as -2731.
bool AllZero(const Readings& readings) {
  return NumberOr(readings, Temperature, 0) == -2731 || NumberOr(readings, VoltageNow, 1) == 0;
}

// Some milliamperes are what an idle gauge measures.
bool WrongSign(const Readings& readings) {
  const int current = NumberOr(readings, CurrentNow, 0);
  return (current < -10000 && Says(readings, Status, "Charging")) ||
         (current > 10000 && Says(readings, Status, "Discharging"));
}

// The two differ by up to a dozen points on healthy gauges: only one charge is compensated for load.
bool ChargesDisagree(const Readings& readings) {
  const double full = NumberOr(readings, FullChargeCapacity, 0);
  const double now = NumberOr(readings, NominalAvailableCapacity, -1);
  const int percent = NumberOr(readings, StateOfCharge, -1);
  return full > 0 && now >= 0 && percent >= 0 && std::abs(100 * now / full - percent) > 25;
}

// By magnitude: older chips give the power another sign than the current. Below a tenth of a watt the
// register, which may count in 10 mW, is too coarse to judge; and a mean lags behind what is now.
bool PowerFarOff(const Readings& readings) {
  const double now =
      std::abs(1e-12 * NumberOr(readings, VoltageNow, 0) * NumberOr(readings, CurrentNow, 0));
  const double mean = std::abs(1e-6 * NumberOr(readings, PowerAverage, 0));
  return now >= 0.1 && mean >= 0.1 && (mean > 5 * now || now > 5 * mean);
}

bool RecordCrossed(const Readings& readings) {
  const auto* record = readings.Record();
  return record != nullptr &&
         (record->minTemp > record->maxTemp || record->minPackVoltage > record->maxPackVoltage);
}

bool RecordInvalid(const Readings& readings) {
  const auto* record = readings.Record();
  if (record == nullptr) {
    return false;
  }
  dral::LifetimeData repaired = *record;
  repaired.Validate();
  return repaired.ToString() != record->ToString();
}

bool Unreadable(const Readings& readings) {
  return std::any_of(readings.begin(), readings.end(), [&](const Reading& reading) {
    return !reading.Succeeded() && !UnreadIsNormal(reading, readings);
  });
}

bool BatteryUnwell(const Readings& readings) {
  const auto health = readings.Text(Health);
  return health && *health != "Good" && *health != "Unknown" && *health != "Calibration required";
}

}  // namespace

bool UnreadIsNormal(const Reading& reading, const Readings& readings) {
  const auto status = readings.Text(Status);
  return reading.status == dral::FuelGaugeStatus::FileError ||
         (reading.property->id == TimeToEmpty && status && *status != "Discharging");
}

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
     [](const Readings& readings) { return NumberOr(readings, Present, 1) == 0; }},
    {"charge-range",
     "error",
     "a charge is from 0 to 100 %: a register was misread",
     {StateOfCharge},
     [](const Readings& readings) {
       const int percent = NumberOr(readings, StateOfCharge, 0);
       return percent < 0 || percent > 100;
     }},
    {"below-absolute-zero",
     "error",
     "no temperature is below -273.1 °C",
     {Temperature},
     [](const Readings& readings) { return NumberOr(readings, Temperature, 0) < -2731; }},
    {"temperature-range",
     "error",
     "the gauge measures from -60 to 140 °C: its sensor is broken",
     {Temperature},
     [](const Readings& readings) {
       const int tenths = NumberOr(readings, Temperature, 0);
       return (tenths < dral::LifetimeData::LifetimeMinTemp && tenths > -2731) ||
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
     "the mean power is far from voltage times current: a load that changes, or a driver that "
     "counts "
     "10 mW where the chip counts 1",
     {PowerAverage, VoltageNow, CurrentNow},
     PowerFarOff},
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
    {"unreadable", "error", "a value that should be there cannot be read", {}, Unreadable},
    {"health",
     "warning",
     "the gauge reports that the battery is not well (Dead is also raised by low charge)",
     {Health},
     BatteryUnwell},
    {"calibration",
     "notice",
     "the gauge wants a learning cycle, a full discharge and charge; until then it guesses",
     {Health},
     [](const Readings& readings) { return Says(readings, Health, "Calibration required"); }},
};

}  // namespace fuelgauge
