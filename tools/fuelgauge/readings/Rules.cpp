// SPDX-License-Identifier: MIT
#include "readings/Rules.hpp"

#include <algorithm>
#include <utility>

#include "readings/Conditions.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;
using enum Severity;

namespace {

using Id = dral::FuelGaugeProperty;
using Find = std::function<Evidence(const Readings&)>;

// Shows @p properties when @p broken.
Find When(std::vector<Id> properties, bool (*broken)(const Readings&)) {
  return [properties, broken](const Readings& readings) {
    return broken(readings) ? Evidence{properties, {}} : Evidence{};
  };
}

// Shows those of all readings that are @p broken.
Find Each(bool (*broken)(const Reading&)) {
  return [broken](const Readings& readings) {
    Evidence evidence;
    for (const Reading& reading : readings) {
      if (broken(reading)) {
        evidence.properties.push_back(reading.property->id);
      }
    }
    return evidence;
  };
}

// Shows those that are @p suspect when one is @p broken, which makes the others doubtful.
Find EachIfAny(bool (*suspect)(const Reading&), bool (*broken)(const Reading&)) {
  return [suspect, broken](const Readings& readings) {
    return std::any_of(readings.begin(), readings.end(), broken) ? Each(suspect)(readings)
                                                                 : Evidence{};
  };
}

// Shows a number that was read and is not from @p least to @p most.
Find Outside(Id id, int least, int most) {
  return [id, least, most](const Readings& readings) {
    const auto number = readings.Number(id);
    return number && (*number < least || *number > most) ? Evidence{{id}, {}} : Evidence{};
  };
}

// Shows those fields of the record that are @p broken.
Find Fields(bool (*broken)(const dral::LifetimeData&, const LifetimeField&)) {
  return [broken](const Readings& readings) {
    Evidence evidence;
    const auto* record = readings.Record();
    for (const LifetimeField& field : LifetimeFields) {
      if (record != nullptr && broken(*record, field)) {
        evidence.fields.push_back(&field);
      }
    }
    return evidence;
  };
}

// Asks only of what this gauge's own driver says: its registers, its cell, the sign of its current.
Find OfOurDriver(Find find) {
  return [find = std::move(find)](const Readings& readings) {
    return readings.AreOfOtherDriver() ? Evidence{} : find(readings);
  };
}

// Asks only of chips that measure one cell. Others of the family, such as bq34z100, serve packs.
Find OfOneCell(Find find) {
  return [find = OfOurDriver(std::move(find))](const Readings& readings) {
    return readings.Supply().starts_with("bq27") ? find(readings) : Evidence{};
  };
}

}  // namespace

const std::map<std::string, Severity> Severities = {
    {"notice", Notice}, {"warning", Warning}, {"error", Error}};

const std::string& NameOf(Severity severity) {
  return std::find_if(Severities.begin(), Severities.end(),
                      [severity](const auto& each) { return each.second == severity; })
      ->first;
}

const std::vector<Rule> Rules = {
    {"all-ones",
     Error,
     "registers read all ones: nothing answered these reads",
     OfOurDriver(Each(AllOnes)),
     {"charge-range", "charge-full", "charges-disagree", "full-early", "level", "temperature-range",
      "voltage-range"}},
    {"all-zero",
     Error,
     "registers read zero: the chip was not ready for these reads, or is not there",
     OfOurDriver(EachIfAny(Zero, NeverZero)),
     {"charge-full", "charges-disagree", "full-early", "level", "temperature-range",
      "voltage-range"}},
    {"no-battery", Error, "the kernel sees no battery, or its bus is dead", Outside(Present, 1, 1)},
    {"unreadable", Error, "a value that should be there cannot be read", Each(Missing)},
    {"voltage-range", Error, "a single cell has from 2 to 5 V",
     OfOneCell(Outside(VoltageNow, 2000000, 5000000))},
    {"charge-range",
     Error,
     "a charge is from 0 to 100 %: this one was misread",
     Outside(StateOfCharge, 0, 100),
     {"charges-disagree", "full-early", "level"}},
    {"charge-full", Error, "a battery that has a charge in % has a charge when full",
     When({FullChargeCapacity, StateOfCharge}, FullChargeMissing)},
    {"temperature-range", Error, "the gauge measures from -60 to 140 °C: its sensor is broken",
     Outside(Temperature, dral::LifetimeData::LifetimeMinTemp,
             dral::LifetimeData::LifetimeMaxTemp)},
    {"negative", Error, "what is counted is not below 0", Each(Negative)},
    {"unknown-word", Warning, "this program does not know the word", Each(UnknownWord), {"health"}},
    {"current-sign", Warning,
     "the current flows the other way than the status says: some kernels turn the sign",
     OfOurDriver(When({Status, CurrentNow}, WrongSign))},
    {"current-status", Warning,
     "the battery is being discharged, and the status says that it is not",
     OfOurDriver(When({Status, CurrentNow}, DrainsUnseen))},
    {"full-early", Warning, "the status says full, the charge in % does not",
     OfOurDriver(When({Status, StateOfCharge}, FullTooEarly))},
    {"level", Warning, "the charge level and the charge in % contradict each other",
     When({ChargeLevel, StateOfCharge}, LevelContradicts)},
    {"charges-disagree", Warning,
     "the charge in % is far from what the charges say: the gauge wants a learning cycle",
     When({StateOfCharge, NominalAvailableCapacity, FullChargeCapacity}, ChargesDisagree)},
    {"health", Warning, "the gauge reports that the battery is not well",
     When({Health}, BatteryUnwell)},
    {"record-crossed", Warning, "a minimum of the lifetime record is above its maximum",
     Fields(CrossedField)},
    {"record-invalid", Warning, "the lifetime record holds values beyond its limits",
     Fields(InvalidField)},
    {"power-scale", Notice,
     "the mean power is ten times voltage times current: a load that has just dropped or, when it "
     "stays so, a driver that counts 10 mW where the chip counts 1",
     OfOurDriver(When({PowerAverage, VoltageNow, CurrentNow}, PowerTenfold))},
    {"power-zero", Notice,
     "a current flows and the mean power is 0: a load that has just begun or, when it stays so, a "
     "chip that does not measure it",
     OfOurDriver(When({PowerAverage, VoltageNow, CurrentNow}, PowerZero))},
    {"calibration", Notice,
     "the gauge wants a learning cycle, a full discharge and charge; until then it guesses",
     When({Health}, Uncalibrated)},
    {"out-of-comfort", Notice, "the battery is colder or hotter than it likes",
     When({Health}, OutOfComfort)},
};

}  // namespace fuelgauge
