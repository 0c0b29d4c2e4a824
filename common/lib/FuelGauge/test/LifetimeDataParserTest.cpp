// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <LifetimeDataParser.hpp>

#include <stdexcept>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using namespace dral;

// The record's bytes, or the exception.
static std::string Parse(const std::string& path, const LifetimeData& defaults = {}) try {
  return Bytes(LifetimeDataParser(path, defaults).GetLifetimeData());
} catch (const std::invalid_argument& exception) {
  return std::string("invalid_argument ") + exception.what();
} catch (const std::out_of_range& exception) {
  return std::string("out_of_range ") + exception.what();
}

TEST(LifetimeDataParser, OverridesWhatTheFileNamesAndLogsWhatItFindsAndMisses) {
  const std::pair<std::string, std::string> cases[] = {
      {"maxTemp 550\nminTemp -100\nmaxPackVoltage 4400\nminPackVoltage 2800\n"
       "maxChargeCurrent 2500\nmaxDischargeCurrent -2000\n",
       Bytes({550, -100, 4400, 2800, 2500, -2000})},
      {" \n", Bytes({})},
      {"maxTemp\v550\r\n\fminTemp\t\t-1", Bytes({.maxTemp = 550, .minTemp = -1})},
      {"maxTemp 550 maxTemp 700 minTemp", Bytes({.maxTemp = 550})},
      {"MaxTemp 550 comment # minTemp 12abc", Bytes({.minTemp = 12})},
      {"maxTemp = 550", "invalid_argument stoi"},
      {"minPackVoltage volts", "invalid_argument stoul"},
      // The low 16 bits count, and are repaired where they are out of the field's limits.
      {"maxTemp 66136 maxPackVoltage 70000 minPackVoltage -18446744073709551615",
       Bytes({.maxTemp = 600, .maxPackVoltage = 4464, .minPackVoltage = 1})},
      {"maxTemp 70000 maxChargeCurrent 32768 maxPackVoltage -1 minPackVoltage -200", Bytes({})},
      {"maxChargeCurrent 40000 maxPackVoltage 4294967297",
       Bytes({.maxPackVoltage = 1, .maxChargeCurrent = -25536})},
      {"maxDischargeCurrent 2147483648", "out_of_range stoi"},
      {"maxPackVoltage 18446744073709551616", "out_of_range stoul"},
  };
  const TemporaryFolder folder;
  LogCapture log;
  for (const auto& [text, outcome] : cases) {
    EXPECT_EQ(Parse(folder.Write("override", text)), outcome) << text;
  }
  LifetimeDataParser::kv_pair pair;
  EXPECT_TRUE(std::istringstream(" a\nb") >> pair && pair.key + pair.value == "ab");
  LifetimeData given{1, 1500, 3, 4, 5, 6};
  given.reserved.fill(7);
  LifetimeData repaired = given;
  repaired.minTemp = -200;
  EXPECT_EQ(Parse(folder.At("missing"), given), Bytes(repaired));
  EXPECT_EQ(Parse(folder.Write("override", "maxTemp 1"), given), Bytes(repaired));

  log.Take();
  Parse(folder.Write("override", "maxTemp 70000 maxTemp 1"));
  const std::string parser = " LifetimeDataParser LifetimeDataParser: ";
  std::string records = "8" + parser + "<key, value> In file: maxTemp 70000\n";
  for (const auto& [key, setter] : LifetimeDataParser::mapping) {  // in no fixed order
    const bool found = key == "maxTemp";
    records += found ? "8" + parser + "Valid <key, value> Found: maxTemp 70000\n"
                     : "3" + parser + "Valid <key, value> Not Found: " + key + "\n";
  }
  records +=
      "6 LifetimeData operator(): LifetimeData::Validate() setting name: maxTemp to default = "
      "600\n";
  EXPECT_EQ(log.Take(), records);
}
