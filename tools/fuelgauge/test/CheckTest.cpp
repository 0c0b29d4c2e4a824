// SPDX-License-Identifier: MIT
#include "readings/Check.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <map>
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

const std::map<std::string, int> Errors = {
    {"-", ENOENT}, {"!", ENODATA}, {"EIO", EIO}, {"ENODEV", ENODEV}, {"EACCES", EACCES}};

// A line of values in that order, '_' for a blank in one, or why there is none.
Readings BatteryOf(const std::string& line, const dral::LifetimeData& record, bool otherDriver) {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    readings.push_back(
        {&property, dral::FuelGaugeStatus::Success, Hint(property.type), {}, otherDriver});
  }
  readings.pop_back();  // the reset value
  readings[static_cast<std::size_t>(Technology)].value = "Li-ion";
  readings[static_cast<std::size_t>(Present)].value = true;
  readings[static_cast<std::size_t>(LifetimeData)].value = record;
  std::istringstream words(line);
  for (const auto id : Attributes) {
    Reading& reading = readings[static_cast<std::size_t>(id)];
    std::string word;
    words >> word;
    if (const auto error = Errors.find(word); error != Errors.end()) {
      reading.status = dral::FuelGaugeStatus::NoData;
      reading.cause.error = error->second;
    } else if (std::holds_alternative<int>(reading.value)) {
      reading.value = std::stoi(word);
    } else {
      std::replace(word.begin(), word.end(), '_', ' ');
      reading.value = word;
    }
  }
  return Readings(std::move(readings));
}

struct Battery {
  const char* title;
  std::string line;
  std::string findings;
  dral::LifetimeData record = {};
  bool otherDriver = false;
};

void Judge(const Battery& battery, bool wrong) {
  std::string findings;
  bool found = false;
  for (const Finding& finding :
       Check(BatteryOf(battery.line, battery.record, battery.otherDriver))) {
    findings.append(finding.rule->name).append(" ");
    found |= finding.rule->severity != Severity::Notice;
  }
  EXPECT_EQ(findings, battery.findings) << battery.title;
  EXPECT_EQ(found, wrong) << battery.title;
}

TEST(Check, OrdinaryBatteriesGiveNoticesAtMost) {
  const Battery batteries[] = {
      {"bq27541, charging", "Charging 3942000 0 63 Normal 188 1553000 2058000 960 0 Good -", ""},
      {"bq27510, charging", "Charging 4099000 1721000 33 Normal 333 1010000 3205000 2 - Good -",
       ""},
      {"bq27200, discharging",
       "Discharging 3536000 -432327 18 Normal 316 366680 2050560 0 1146100 Calibration_required "
       "4140",
       "calibration "},
      {"bq78z100, discharging",
       "Discharging 3386000 -5000 27 Normal 269 1736000 6494000 1 -20000 Good 1249920", ""},
      {"bq78z100, idle", "Not_charging 3386000 0 27 Normal 270 1734000 6494000 1 0 Good !", ""},
      {"idle for weeks", "Discharging 3921000 -3000 71 Normal 221 1460000 2058000 96 0 Good !", ""},
      {"just unplugged",
       "Discharging 4102000 -250000 98 Normal 301 2020000 2058000 96 4810000 Good !", ""},
      {"just plugged in",
       "Charging 3890000 1712000 41 Normal 262 850000 2058000 96 -1560000 Good !", ""},
      {"cold, -18 °C",
       "Discharging 3412000 -190000 31 Normal -180 1490000 1510000 96 -650000 Good 2820", ""},
      {"hot", "Discharging 3786000 -412000 74 Normal 541 1553000 2058000 96 -1560000 Good 13560",
       ""},
      {"so hot that the gauge says so",
       "Charging 3942000 900000 63 Normal 461 1300000 2058000 96 3500000 Warm !",
       "out-of-comfort "},
      {"a heavy load",
       "Discharging 3320000 -3900000 48 Normal 310 1640000 2010000 96 -12900000 Good 890", ""},
      {"old", "Full 4188000 0 100 Full 251 713000 720000 1104 0 Good !", ""},
      {"nearly empty",
       "Discharging 3080000 -240000 3 Critical 233 61000 2058000 96 -740000 Dead 840", ""},
      {"trickle-charged", "Full 4191000 21000 100 Full 248 2050000 2058000 96 90000 Good !", ""},
      {"a load that begins",
       "Discharging 3640000 -2103000 52 Normal 260 1080000 2058000 96 -410000 Good 1800", ""},
      {"a load that begins after sleep",
       "Discharging 3640000 -2103000 52 Normal 260 1080000 2058000 96 0 Good 1800", "power-zero "},
      {"a load that ends",
       "Discharging 3786000 -40000 74 Normal 251 1553000 2058000 96 -1560000 Good 139000",
       "power-scale "},
      {"a wearable of 200 mAh",
       "Discharging 3870000 -4000 64 Low 305 121000 190000 12 -20000 Good 108900", ""},
      {"a pack of 10 Ah",
       "Charging 3911000 4800000 58 Normal 288 5710000 9860000 33 18700000 Good !", ""},
      {"freshly reset",
       "Not_charging 3801000 0 55 Normal 241 550000 1000000 0 0 Calibration_required !",
       "calibration "},
      {"at the limits", "Unknown 5000000 10000 100 Normal 1400 1 1 0 0 Good 0", ""},
      {"at the lower ones", "Discharging 2000000 10000 0 Critical -600 0 1 0 0 Good 0", ""},
      {"a laptop's three cells",
       "Discharging 11400000 1312000 74 Normal - 3100000 4200000 65535 - - -",
       "",
       {},
       true},
      {"another driver that knows little", "Full - ENODEV 80 - - - - - - - !", "", {}, true},
      {"a driver that lacks what it may", "Discharging 3786000 -412000 74 - 251 - - - - - -", ""},
  };
  for (const Battery& battery : batteries) {
    Judge(battery, false);
  }
}

TEST(Check, BrokenOnesGiveWhatIsWrongAndNotWhatFollows) {
  const std::string good =
      "Discharging 3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Good 13560";
  const Battery batteries[] = {
      {"bq27200, worn, whose charge is not there",
       "Discharging 3633000 -397341 - Normal 299 - 2050560 0 1432260 Calibration_required -",
       "unreadable calibration "},
      {"no voltage", "Discharging - -412000 74 Normal 251 1553000 2058000 96 -1560000 Good 13560",
       "unreadable "},
      {"a status that may not be read",
       "EACCES 3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Good !", "unreadable "},
      {"a dead bus", "EIO EIO EIO EIO EIO EIO EIO EIO EIO EIO EIO EIO", "unreadable "},
      {"cycles without a value",
       "Discharging 3786000 -412000 74 Normal 251 1553000 2058000 ! -1560000 Good 13560",
       "unreadable "},
      {"all ones", "Full 65535000 0 65535 Full 62804 65535000 65535000 65535 0 Good !",
       "all-ones "},
      {"all zero", "Not_charging 0 0 0 Critical -2731 0 0 0 0 Dead !", "all-zero "},
      {"cycles of all ones, and broken besides",
       "Full 65535000 0 74 Full 1401 1000000 0 65535 0 Good !",
       "all-ones charge-full temperature-range full-early "},
      {"a voltage below 0",
       "Discharging -3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Good 13560",
       "voltage-range "},
      {"three cells",
       "Discharging 11400000 -412000 74 Normal 251 1553000 2058000 96 -4600000 Good 13560",
       "voltage-range "},
      {"1536 %", "Full 4100000 0 1536 Full 251 2058000 2058000 1 0 Good !", "charge-range "},
      {"nothing when full", "Discharging 3786000 -412000 74 Normal 251 0 0 96 -1560000 Good 13560",
       "charge-full "},
      {"colder than the gauge measures", "Unknown 3700000 0 50 Normal -601 - - 0 0 Good !",
       "temperature-range "},
      {"hotter", "Unknown 3700000 0 50 Normal 1401 - - 0 0 Good !", "temperature-range "},
      {"counts below 0",
       "Discharging 3786000 -412000 74 Normal 251 -1000 2058000 -1 -1560000 Good -60", "negative "},
      {"words of no kernel",
       "discharging 3786000 -412000 74 normal 251 1553000 2058000 96 -1560000 good 13560",
       "unknown-word "},
      {"the sign turned", "Discharging 3786000 412000 74 Normal 251 - - 96 1560000 Good 4140",
       "current-sign "},
      {"the other way", "Charging 3786000 -412000 74 Normal 251 - - 96 -1560000 Good !",
       "current-sign "},
      {"2 A while not charging",
       "Not_charging 3786000 -2000000 74 Normal 251 1553000 2058000 96 -7560000 Good !",
       "current-status "},
      {"full while discharging at 74 %",
       "Full 3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Good 13560",
       "current-status full-early "},
      {"critical at 95 %",
       "Charging 4100000 412000 95 Critical 251 1953000 2058000 96 1690000 Good !", "level "},
      {"a lost capacity", "Full 4100000 0 100 Full 251 1000000 2058000 1 0 Good !",
       "charges-disagree "},
      {"a charge that the percent hide",
       "Discharging 3786000 -40000 40 Normal 251 1953000 2058000 1 -150000 Good 4140",
       "charges-disagree "},
      {"too hot, by its own word", "Full 4100000 0 99 Full 651 - - 0 0 Overheat !", "health "},
      {"dead at 74 %",
       "Discharging 3786000 -412000 74 Normal 251 1553000 2058000 96 -1560000 Dead 13560",
       "health "},
      {"what no battery of any driver has",
       "charging -1 EIO 110 Normal 1401 - - -1 - Good -",
       "unreadable charge-range temperature-range negative unknown-word ",
       {},
       true},
      {"a record crossed", good, "record-crossed ", {100, 200, 4000, 3000, 0, 0}},
      {"voltages crossed", good, "record-crossed ", {100, 0, 3000, 3001, 0, 0}},
      {"a record beyond limits", good, "record-invalid ", {1401, 0, 32768, 3000, 0, 0}},
  };
  for (const Battery& battery : batteries) {
    Judge(battery, true);
  }
}

}  // namespace
}  // namespace fuelgauge
