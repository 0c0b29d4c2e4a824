// SPDX-License-Identifier: MIT
#include "readings/Conditions.hpp"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>
#include <iterator>
#include <string_view>

#include "readings/Words.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

using Id = dral::FuelGaugeProperty;

// As the kernel shows a temperature register of 0.
constexpr int ZeroKelvin = -2731;

// The number, or one that breaks no rule when it was not read.
int NumberOr(const Readings& readings, Id id, int otherwise) {
  return readings.Number(id).value_or(otherwise);
}

template <typename Words>
bool OneOf(const Words& words, std::string_view word) {
  return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

bool Says(const Readings& readings, Id id, std::initializer_list<std::string_view> words) {
  const auto text = readings.Text(id);
  return text && OneOf(words, *text);
}

double PowerNow(const Readings& readings) {
  return std::abs(1e-12 * NumberOr(readings, VoltageNow, 0) * NumberOr(readings, CurrentNow, 0));
}

}  // namespace

bool Missing(const Reading& reading) {
  return !reading.Succeeded() && !reading.MayBeMissing();
}

bool AllOnes(const Reading& reading) {
  switch (reading.property->unit) {
    case Unit::None:
    case Unit::Percent:
      return reading.Number() == 65535;
    case Unit::Microvolt:
    case Unit::MicroampereHour:
      return reading.Number() == 65535000;
    case Unit::TenthDegreeCelsius:
      return reading.Number() == 65535 + ZeroKelvin;
    default:  // signed, or computed
      return false;
  }
}

bool NeverZero(const Reading& reading) {
  const Id id = reading.property->id;
  return (id == Temperature || id == VoltageNow) && Zero(reading);
}

bool Zero(const Reading& reading) {
  switch (reading.property->unit) {
    case Unit::TenthDegreeCelsius:
      return reading.Number() == ZeroKelvin;
    case Unit::Microvolt:
    case Unit::Percent:
    case Unit::MicroampereHour:
      return reading.Number() == 0;
    default:
      return false;
  }
}

bool Negative(const Reading& reading) {
  const Id id = reading.property->id;
  const bool counted = id == NominalAvailableCapacity || id == CycleCount || id == TimeToEmpty;
  return (counted || (id == VoltageNow && reading.otherDriver)) &&  // ours has a range
         reading.Number().value_or(0) < 0;
}

bool UnknownWord(const Reading& reading) {
  const auto word = reading.Text();
  switch (reading.property->id) {
    case Technology:
      return word && !OneOf(TechnologyWords, *word);
    case Status:
      return word && !OneOf(StatusWords, *word);
    case ChargeLevel:
      return word && !OneOf(LevelWords, *word);
    case Health:
      return word && !OneOf(HealthWords, *word);
    default:
      return false;
  }
}

bool FullChargeMissing(const Readings& readings) {
  return NumberOr(readings, FullChargeCapacity, 1) <= 0 && readings.Number(StateOfCharge);
}

// Some milliamperes are what an idle gauge measures.
bool WrongSign(const Readings& readings) {
  const int current = NumberOr(readings, CurrentNow, 0);
  return (current < -10000 && Says(readings, Status, {"Charging"})) ||
         (current > 10000 && Says(readings, Status, {"Discharging"}));
}

bool DrainsUnseen(const Readings& readings) {
  return NumberOr(readings, CurrentNow, 0) < -100000 &&
         Says(readings, Status, {"Full", "Not charging"});
}

bool FullTooEarly(const Readings& readings) {
  return NumberOr(readings, StateOfCharge, 100) < 90 && Says(readings, Status, {"Full"});
}

// A gauge that nobody configured raises Low and Critical at a charge meant for a larger pack.
bool LevelContradicts(const Readings& readings) {
  return (NumberOr(readings, StateOfCharge, 0) > 50 && Says(readings, ChargeLevel, {"Critical"})) ||
         (NumberOr(readings, StateOfCharge, 100) < 50 && Says(readings, ChargeLevel, {"Full"}));
}

// Healthy gauges were seen a dozen points apart. The charge now is not compensated for load and
// temperature, the other two are: cold or under load it may be far above what the percent say.
bool ChargesDisagree(const Readings& readings) {
  if (Uncalibrated(readings)) {
    return false;  // the gauge guesses, and says so
  }
  const double full = NumberOr(readings, FullChargeCapacity, 0);
  const double now = NumberOr(readings, NominalAvailableCapacity, -1);
  const int percent = NumberOr(readings, StateOfCharge, -1);
  if (full <= 0 || now < 0 || percent < 0) {
    return false;
  }
  const bool warm = NumberOr(readings, Temperature, 0) >= 100;
  const double load = std::abs(1.0 * NumberOr(readings, CurrentNow, 0));
  const double above = 100 * now / full - percent;
  return above < -25 || (above > 25 && warm && load <= full / 5);
}

// By magnitude: older chips give the power another sign than the current. Below a tenth of a watt the
// register, which may count in 10 mW, is too coarse. A mean lags behind what is now, so that a load
// that has just dropped looks the same: this can be no more than a notice.
bool PowerTenfold(const Readings& readings) {
  const double now = PowerNow(readings);
  const double mean = std::abs(1e-6 * NumberOr(readings, PowerAverage, 0));
  return now >= 0.1 && mean > 8 * now && mean < 12.5 * now;
}

bool PowerZero(const Readings& readings) {
  return NumberOr(readings, PowerAverage, 1) == 0 && PowerNow(readings) >= 1;
}

bool CrossedField(const dral::LifetimeData& record, const LifetimeField& field) {
  return std::any_of(LifetimeRanges.begin(), LifetimeRanges.end(), [&](const auto& range) {
    const auto [minimum, maximum] = range;
    return (&field == minimum || &field == maximum) &&
           minimum->Value(record) > maximum->Value(record);
  });
}

// Low charge raises Dead as well, and the weather Cold and Hot.
bool BatteryUnwell(const Readings& readings) {
  const bool low = Says(readings, ChargeLevel, {"Low", "Critical"}) ||
                   NumberOr(readings, StateOfCharge, 100) <= 20;
  return readings.Text(Health) &&
         !Says(readings, Health,
               {"Good", "Unknown", "Calibration required", "Cold", "Cool", "Warm", "Hot"}) &&
         !(low && Says(readings, Health, {"Dead"}));
}

bool Uncalibrated(const Readings& readings) {
  return Says(readings, Health, {"Calibration required"});
}

bool OutOfComfort(const Readings& readings) {
  return Says(readings, Health, {"Cold", "Cool", "Warm", "Hot"});
}

bool InvalidField(const dral::LifetimeData& record, const LifetimeField& field) {
  return !field.Allows(field.Value(record));
}

}  // namespace fuelgauge
