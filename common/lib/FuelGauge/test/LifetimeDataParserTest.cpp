// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <LifetimeDataParser.hpp>

#include <algorithm>
#include <set>
#include <sstream>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::LifetimeData;
using dral::LifetimeDataParser;

namespace {

// The record's fields as words, or the exception.
std::string Parse(const std::string& path, const LifetimeData& defaults = {}) {
  std::string fields;
  const std::string exception = Outcome([&] {
    const LifetimeData data = LifetimeDataParser(path, defaults).GetLifetimeData();
    fields = std::to_string(data.maxTemp) + " " + std::to_string(data.minTemp) + " " +
             std::to_string(data.maxPackVoltage) + " " + std::to_string(data.minPackVoltage) + " " +
             std::to_string(data.maxChargeCurrent) + " " + std::to_string(data.maxDischargeCurrent);
    return dral::FuelGaugeStatus::Success;
  });
  return fields.empty() ? exception : fields;
}

TEST(LifetimeDataParser, OverridesWhatTheFileNames) {
  const std::string defaults = "600 -200 4450 2500 3000 -1500";
  struct Case {
    const char* title;
    std::string text;
    std::string outcome;
  };
  const Case cases[] = {
      {"all six",
       "maxTemp 550\nminTemp -100\nmaxPackVoltage 4400\nminPackVoltage 2800\n"
       "maxChargeCurrent 2500\nmaxDischargeCurrent -2000\n",
       "550 -100 4400 2800 2500 -2000"},
      {"no words", " \n", defaults},
      {"any white space", "maxTemp\v550\r\n\fminTemp\t\t-1", "550 -1 4450 2500 3000 -1500"},
      {"the first of a name counts", "maxTemp 550 maxTemp 700", "550 -200 4450 2500 3000 -1500"},
      {"names have a case", "MaxTemp 550", defaults},
      {"a last name without value", "maxTemp 550 minTemp", "550 -200 4450 2500 3000 -1500"},
      {"equals sign", "maxTemp = 550", "invalid_argument stoi"},
      {"bad value of an unknown name", "comment # maxTemp 1", "1 -200 4450 2500 3000 -1500"},
      {"no digit", "minPackVoltage volts", "invalid_argument stoul"},
      {"letters after digits", "minTemp 12abc", "600 12 4450 2500 3000 -1500"},
      {"low 16 bits, too hot", "maxTemp 70000", defaults},
      {"low 16 bits, valid",
       "maxTemp 66136 maxPackVoltage 70000 minPackVoltage -18446744073709551615",
       "600 -200 4464 1 3000 -1500"},
      {"low 16 bits, repaired", "maxChargeCurrent 32768 maxPackVoltage -1 minPackVoltage -200",
       defaults},
      {"low 16 bits, signed", "maxChargeCurrent 40000", "600 -200 4450 2500 -25536 -1500"},
      {"beyond 32 bits", "maxDischargeCurrent 2147483648", "out_of_range stoi"},
      {"voltage beyond 32 bits", "maxPackVoltage 4294967297", "600 -200 1 2500 3000 -1500"},
      {"beyond 64 bits", "maxPackVoltage 18446744073709551616", "out_of_range stoul"},
  };
  const TemporaryFolder folder;
  const LogCapture log;
  for (const Case& each : cases) {
    EXPECT_EQ(Parse(folder.Write("override", each.text)), each.outcome) << each.title;
  }
}

TEST(LifetimeDataParser, KeepsReservedBytesAndValidatesTheDefaults) {
  LifetimeData defaults{1, 1500, 3, 4, 5, 6};
  defaults.reserved.fill(0xA5);
  const TemporaryFolder folder;
  const LogCapture log;
  const LifetimeDataParser parser(folder.Write("override", "maxTemp 2"), defaults);
  EXPECT_EQ(parser.GetLifetimeData().reserved, defaults.reserved);
  EXPECT_EQ(Parse(folder.At("missing"), defaults), "1 -200 3 4 5 6");
  EXPECT_EQ(Parse("/proc/self/mem", defaults), "1 -200 3 4 5 6") << "a read error ends the file";
}

TEST(LifetimeDataParser, LogsWhatItFindsAndMisses) {
  const TemporaryFolder folder;
  LogCapture log;
  Parse(folder.At("missing"));
  EXPECT_EQ(log.Take(), "3 LifetimeDataParser LifetimeDataParser: Failed to open file : " +
                            folder.At("missing") + "\n");
  Parse(folder.Write("override", ""));
  EXPECT_EQ(std::ranges::count(log.Take(), '\n'), 6) << "one \"Valid … Not Found\" for each field";
  Parse(folder.Write("override", "maxTemp 70000 minTemp -1 minTemp -2 colour red"));
  std::multiset<std::string> records;  // in no order
  std::istringstream lines(log.Take());
  for (std::string line; std::getline(lines, line);) {
    records.insert(line);
  }
  const std::string parser = " LifetimeDataParser LifetimeDataParser: ";
  EXPECT_EQ(records, (std::multiset<std::string>{
                         "3" + parser + "Valid <key, value> Not Found: maxChargeCurrent",
                         "3" + parser + "Valid <key, value> Not Found: maxDischargeCurrent",
                         "3" + parser + "Valid <key, value> Not Found: maxPackVoltage",
                         "3" + parser + "Valid <key, value> Not Found: minPackVoltage",
                         "6 LifetimeData operator(): LifetimeData::Validate() setting name: "
                         "maxTemp to default = 600",
                         "8" + parser + "<key, value> In file: colour red",
                         "8" + parser + "<key, value> In file: maxTemp 70000",
                         "8" + parser + "<key, value> In file: minTemp -1",
                         "8" + parser + "Valid <key, value> Found: maxTemp 70000",
                         "8" + parser + "Valid <key, value> Found: minTemp -1",
                     }));
}

}  // namespace
