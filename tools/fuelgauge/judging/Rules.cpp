// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdlib>
#include <initializer_list>
#include <optional>

#include "judging/Rules.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;
using enum Severity;

namespace {

using Id = dral::FuelGaugeProperty;
using Find = std::function<Evidence(const Readings&)>;

// Of what was not read a rule holds nothing against the gauge: it takes a number that breaks none.
int NumberOr(const Readings& readings, Id id, int otherwise) {
  return readings[id].Number().value_or(otherwise);
}

bool Says(const Readings& readings, Id id, std::initializer_list<std::string_view> words) {
  const auto* text = readings[id].Text();
  return text != nullptr && std::find(words.begin(), words.end(), *text) != words.end();
}

// Of the battery, in watts.
double PowerNow(const Readings& readings) {
  return std::abs(1e-12 * NumberOr(readings, VoltageNow, 0) * NumberOr(readings, CurrentNow, 0));
}

// What the kernel shows of a register that holds 0, or all ones; where it is signed or computed, nobody knows.
struct Register {
  Unit unit;
  std::optional<int> zero;  // none: it may well be
  int ones;
};
constexpr auto Registers = std::to_array<Register>({
    {units::None, {}, 65535},
    {units::Percent, 0, 65535},
    {units::Microvolt, 0, 65535000},
    {units::MicroampereHour, 0, 65535000},
    {units::TenthDegreeCelsius, -2731, 65535 - 2731},
});

template <auto Extreme>
bool Reads(const Reading& reading) {
  return std::any_of(Registers.begin(), Registers.end(), [&reading](const Register& each) {
    const auto number = reading.Number();
    return each.unit == reading.property->unit && number && number == each.*Extreme;
  });
}

// Shows these properties when @p broken.
template <Id... Shown>
Find When(bool (*broken)(const Readings&)) {
  return [broken](const Readings& readings) {
    return broken(readings) ? Evidence{{&readings[Shown]...}, {}} : Evidence{};
  };
}

// Shows those of all readings that are @p broken.
Find Each(bool (*broken)(const Reading&)) {
  return [broken](const Readings& readings) {
    Evidence evidence;
    for (const Reading& reading : readings) {
      if (broken(reading)) {
        evidence.readings.push_back(&reading);
      }
    }
    return evidence;
  };
}

// Shows a number that was read and is not from @p least to @p most.
Find Outside(Id id, int least, int most) {
  return [id, least, most](const Readings& readings) {
    const auto number = readings[id].Number();
    return number && (*number < least || *number > most) ? Evidence{{&readings[id]}, {}}
                                                         : Evidence{};
  };
}

// Shows those fields of the record that are @p broken.
Find Fields(bool (*broken)(const dral::LifetimeData&, const LifetimeField&)) {
  return [broken](const Readings& readings) {
    Evidence evidence;
    const auto* record = readings[LifetimeData].Record();
    for (const LifetimeField& field : LifetimeFields) {
      if (record != nullptr && broken(*record, field)) {
        evidence.fields.emplace_back(&field, field.Value(*record));
      }
    }
    return evidence;
  };
}

// Asks only of what this gauge's own driver says: its registers, the sign of its current.
Find OfOurDriver(Find find) {
  return [find = std::move(find)](const Readings& readings) {
    return readings.AreOfOtherDriver() ? Evidence{} : find(readings);
  };
}

// Asks only of chips that measure one cell. Others of the family, such as bq34z100, serve packs.
Find OfOneCell(Find find) {
  return OfOurDriver([find = std::move(find)](const Readings& readings) {
    return readings.SupplyName().starts_with("bq27") ? find(readings) : Evidence{};
  });
}

// One register that is never zero makes the others that are zero doubtful.
Evidence AllZero(const Readings& readings) {
  constexpr auto zero = Reads<&Register::zero>;
  return zero(readings[VoltageNow]) || zero(readings[Temperature]) ? Each(zero)(readings)
                                                                   : Evidence{};
}

// Healthy gauges were seen a dozen points apart. The charge now is not compensated for load and
// temperature, the other two are: cold or under load it may be far above what the percent say.
bool ChargesDisagree(const Readings& readings) {
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

// Low charge raises Dead as well, and the weather Cold and Hot.
bool BatteryUnwell(const Readings& readings) {
  const bool low = Says(readings, ChargeLevel, {"Low", "Critical"}) ||
                   NumberOr(readings, StateOfCharge, 100) <= 20;
  return readings[Health].Text() != nullptr &&
         !Says(readings, Health,
               {"Good", "Unknown", "Calibration required", "Cold", "Cool", "Warm", "Hot"}) &&
         !(low && Says(readings, Health, {"Dead"}));
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
     OfOurDriver(Each(Reads<&Register::ones>)),
     {"charge-range", "charge-full", "charges-disagree", "full-early", "level", "temperature-range",
      "voltage-range"}},
    {"all-zero",
     Error,
     "registers read zero: the chip was not ready for these reads, or is not there",
     OfOurDriver(AllZero),
     {"charge-full", "charges-disagree", "full-early", "level", "temperature-range",
      "voltage-range"}},
    {"no-battery", Error, "the kernel sees no battery, or its bus is dead", Outside(Present, 1, 1)},
    {"unreadable", Error, "a value that should be there cannot be read",
     Each([](const Reading& reading) { return !reading.Succeeded() && !reading.MayBeMissing(); })},
    {"voltage-range", Error, "a single cell has from 2 to 5 V",
     OfOneCell(Outside(VoltageNow, 2000000, 5000000))},
    {"charge-range",
     Error,
     "a charge is from 0 to 100 %: this one was misread",
     Outside(StateOfCharge, 0, 100),
     {"charges-disagree", "full-early", "level"}},
    {"charge-full", Error, "a battery that has a charge in % has a charge when full",
     When<FullChargeCapacity, StateOfCharge>([](const Readings& readings) {
       return NumberOr(readings, FullChargeCapacity, 1) <= 0 && readings[StateOfCharge].Number();
     })},
    {"temperature-range", Error, "the gauge measures from -60 to 140 °C: its sensor is broken",
     Outside(Temperature, dral::LifetimeData::LifetimeMinTemp,
             dral::LifetimeData::LifetimeMaxTemp)},
    {"negative", Error, "what is counted is not below 0", Each([](const Reading& reading) {
       const Id id = reading.property->id;
       const bool counted = id == NominalAvailableCapacity || id == CycleCount ||
                            id == TimeToEmpty ||
                            (id == VoltageNow && reading.otherDriver);  // ours has a range
       return counted && reading.Number().value_or(0) < 0;
     })},
    {"unknown-word",
     Warning,
     "this program does not know the word",
     Each([](const Reading& reading) {
       const auto* word = reading.Text();
       const auto known = reading.property->words;
       return word != nullptr && !known.empty() &&
              std::find(known.begin(), known.end(), *word) == known.end();
     }),
     {"health"}},
    {"current-sign", Warning,
     "the current flows the other way than the status says: some kernels turn the sign",
     OfOurDriver(When<Status, CurrentNow>([](const Readings& readings) {
       // Some milliamperes are what an idle gauge measures.
       const int current = NumberOr(readings, CurrentNow, 0);
       return (current < -10000 && Says(readings, Status, {"Charging"})) ||
              (current > 10000 && Says(readings, Status, {"Discharging"}));
     }))},
    {"current-status", Warning,
     "the battery is being discharged, and the status says that it is not",
     OfOurDriver(When<Status, CurrentNow>([](const Readings& readings) {
       return NumberOr(readings, CurrentNow, 0) < -100000 &&
              Says(readings, Status, {"Full", "Not charging"});
     }))},
    {"full-early", Warning, "the status says full, the charge in % does not",
     OfOurDriver(When<Status, StateOfCharge>([](const Readings& readings) {
       return NumberOr(readings, StateOfCharge, 100) < 90 && Says(readings, Status, {"Full"});
     }))},
    {"level", Warning, "the charge level and the charge in % contradict each other",
     When<ChargeLevel, StateOfCharge>([](const Readings& readings) {
       // A gauge that nobody configured raises Low and Critical at a charge meant for a larger pack.
       return (NumberOr(readings, StateOfCharge, 0) > 50 &&
               Says(readings, ChargeLevel, {"Critical"})) ||
              (NumberOr(readings, StateOfCharge, 100) < 50 &&
               Says(readings, ChargeLevel, {"Full"}));
     })},
    {"charges-disagree", Warning,
     "the charge in % is far from what the charges say: the gauge wants a learning cycle",
     When<StateOfCharge, NominalAvailableCapacity, FullChargeCapacity>(ChargesDisagree)},
    {"health", Warning, "the gauge reports that the battery is not well",
     When<Health>(BatteryUnwell)},
    {"record-crossed", Warning, "a minimum of the lifetime record is above its maximum",
     Fields([](const dral::LifetimeData& record, const LifetimeField& field) {
       return std::any_of(LifetimeRanges.begin(), LifetimeRanges.end(), [&](const auto& range) {
         const auto [minimum, maximum] = range;
         return (&field == minimum || &field == maximum) &&
                minimum->Value(record) > maximum->Value(record);
       });
     })},
    {"record-invalid", Warning, "the lifetime record holds values beyond its limits",
     Fields([](const dral::LifetimeData& record, const LifetimeField& field) {
       return !field.Allows(field.Value(record));
     })},
    {"power-scale", Notice,
     "the mean power is ten times voltage times current: a load that has just dropped or, when it "
     "stays so, a driver that counts 10 mW where the chip counts 1",
     OfOurDriver(When<PowerAverage, VoltageNow, CurrentNow>([](const Readings& readings) {
       // By magnitude: older chips give the power another sign than the current. Below a tenth of a watt
       // the register, which may count in 10 mW, is too coarse. A mean lags behind what is now, so that a
       // load that has just dropped looks the same: this can be no more than a notice.
       const double now = PowerNow(readings);
       const double mean = std::abs(1e-6 * NumberOr(readings, PowerAverage, 0));
       return now >= 0.1 && mean > 8 * now && mean < 12.5 * now;
     }))},
    {"power-zero", Notice,
     "a current flows and the mean power is 0: a load that has just begun or, when it stays so, a "
     "chip that does not measure it",
     OfOurDriver(When<PowerAverage, VoltageNow, CurrentNow>([](const Readings& readings) {
       return NumberOr(readings, PowerAverage, 1) == 0 && PowerNow(readings) >= 1;
     }))},
    {"calibration",
     Notice,
     "the gauge wants a learning cycle, a full discharge and charge; until then it guesses",
     When<Health>(
         [](const Readings& readings) { return Says(readings, Health, {"Calibration required"}); }),
     {},
     {"charges-disagree"}},
    {"out-of-comfort", Notice, "the battery is colder or hotter than it likes",
     When<Health>([](const Readings& readings) {
       return Says(readings, Health, {"Cold", "Cool", "Warm", "Hot"});
     })},
};

}  // namespace fuelgauge
