// SPDX-License-Identifier: MIT
#include "readings/Rules.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using enum dral::FuelGaugeProperty;

namespace fuelgauge {
namespace {

constexpr auto Attributes = {Status,
                             VoltageNow,
                             CurrentNow,
                             StateOfCharge,
                             ChargeLevel,
                             Temperature,
                             NominalAvailableCapacity,
                             FullChargeCapacity,
                             CycleCount,
                             PowerAverage,
                             Health,
                             TimeToEmpty};

// A line of values in that order, '_' for a blank in one; '-' was not there, '!' could not be read.
Readings ReadingsOf(const std::string& line, const dral::LifetimeData& record) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    readings.push_back({&property, dral::FuelGaugeStatus::Success, Hint(property.type)});
  }
  readings[static_cast<std::size_t>(Present)].value = true;
  readings[static_cast<std::size_t>(LifetimeData)].value = record;
  std::istringstream words(line);
  for (const auto id : Attributes) {
    Reading& reading = readings[static_cast<std::size_t>(id)];
    std::string word;
    words >> word;
    if (word == "-" || word == "!") {
      reading.status =
          word == "-" ? dral::FuelGaugeStatus::FileError : dral::FuelGaugeStatus::NoData;
    } else if (std::holds_alternative<int>(reading.value)) {
      reading.value = std::stoi(word);
    } else {
      std::replace(word.begin(), word.end(), '_', ' ');
      reading.value = word;
    }
  }
  return Readings(std::move(readings));
}

TEST(Rules, FindWhatIsWrongAndNothingElse) {
  struct Case {
    const char* title;
    std::string line;
    std::string findings;
    dral::LifetimeData record = {};
  };
  const std::string good =
      "Discharging 3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Good ";
  const Case cases[] = {
      {"bq27541, charging", "Charging 3942000 0 63 Normal 188 1553000 2058000 960 0 Good -", ""},
      {"bq27510, charging", "Charging 4099000 1721000 33 Normal 333 1010000 3205000 2 - Good -",
       ""},
      {"bq27200, discharging",
       "Discharging 3536000 -432327 18 Normal 316 366680 2050560 0 1146100 Calibration_required "
       "4140",
       "calibration "},
      {"bq27200, worn",
       "Discharging 3633000 -397341 - Normal 299 - 2050560 0 1432260 Calibration_required -",
       "calibration "},
      {"bq78z100, discharging",
       "Discharging 3386000 -5000 27 Normal 269 1736000 6494000 1 -20000 Good 1249920", ""},
      {"bq78z100, idle", "Not_charging 3386000 0 27 Normal 270 1734000 6494000 1 0 Good !", ""},
      {"discharging without a time", good + "!", "unreadable "},
      {"a bus that died", "! ! ! ! ! ! ! ! ! ! ! !", "unreadable "},
      {"1536 %", "Full 4100000 0 1536 Full 251 2058000 2058000 1 0 Good !",
       "charge-range charges-disagree "},
      {"all ones", "Unknown 65535000 0 65535 Full 251 - - 65535 0 Good !",
       "all-ones charge-range "},
      {"all zero", "Unknown 0 0 0 Critical -2731 0 0 0 0 Good !", "all-zero "},
      {"colder than cold", "Unknown 3700000 0 50 Normal -2732 - - 0 0 Good !",
       "below-absolute-zero "},
      {"colder than the gauge measures", "Unknown 3700000 0 50 Normal -601 - - 0 0 Good !",
       "temperature-range "},
      {"hotter", "Unknown 3700000 0 50 Normal 1401 - - 0 0 Good !", "temperature-range "},
      {"too hot, by its own word", "Full 4100000 0 99 Full 651 - - 0 0 Overheat !", "health "},
      {"at the limits", "Unknown 3700000 0 100 Normal 1400 - - 0 0 Good !", ""},
      {"the sign turned", "Discharging 3786000 412000 74 Normal 251 - - 96 1560000 Good 4140",
       "current-sign "},
      {"the other way", "Charging 3786000 -412000 74 Normal 251 - - 96 1560000 Good !",
       "current-sign "},
      {"a lost capacity", "Full 4100000 0 100 Full 251 1000000 2058000 1 0 Good !",
       "charges-disagree "},
      {"ten times the power",
       "Discharging 3786000 -412000 74 Normal 251 - - 96 -15600000 Good 4140", "power-scale "},
      {"a tenth of the power", "Charging 3786000 5000000 74 Normal 251 - - 96 1560000 Good !",
       "power-scale "},
      {"the power's sign is its own",
       "Charging 3786000 412000 74 Normal 251 - - 96 -1560000 Good !", ""},
      {"too little power to judge", "Discharging 3786000 -5000 74 Normal 251 - - 96 -99000 Good 9",
       ""},
      {"a mean that has only begun",
       "Discharging 3786000 -412000 74 Normal 251 - - 96 -20000 Good 9", ""},
      {"a load that has just gone",
       "Discharging 3786000 -10000 74 Normal 251 - - 96 -1560000 Good 9", ""},
      {"an idle gauge's noise", "Discharging 3786000 10000 74 Normal 251 - - 96 0 Good 9", ""},
      {"a record crossed", good + "1", "record-crossed ", {100, 200, 4000, 3000, 0, 0}},
      {"voltages crossed", good + "1", "record-crossed ", {100, 0, 3000, 3001, 0, 0}},
      {"a record beyond limits", good + "1", "record-invalid ", {1401, 0, 4000, 3000, 0, 0}},
  };
  for (const Case& each : cases) {
    const Readings readings = ReadingsOf(each.line, each.record);
    std::string findings;
    for (const Rule& rule : Rules) {
      findings += rule.broken(readings) ? std::string(rule.name) + " " : "";
    }
    EXPECT_EQ(findings, each.findings) << each.title;
  }
}

}  // namespace
}  // namespace fuelgauge
