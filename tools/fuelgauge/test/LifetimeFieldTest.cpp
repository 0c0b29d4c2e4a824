// SPDX-License-Identifier: MIT
#include "readings/LifetimeField.hpp"

#include <gtest/gtest.h>

#include "readings/UsageError.hpp"

namespace fuelgauge {
namespace {

TEST(LifetimeField, AssignsWholeNumbersOnly) {
  struct Case {
    std::string assignment;
    std::string outcome;  // the field's new value, or a part of the refusal
  };
  const Case cases[] = {
      {"maxTemp=-600", "-600"},
      {"maxTemp=1400", "1400"},
      {"maxTemp=1401", "maxTemp: '1401' is not a whole number from -600 to 1400"},
      {"maxTemp=-601", "from -600 to 1400"},
      {"maxTemp=66086", "from -600 to 1400"},  // whose low 16 bits are 550
      {"maxTemp=", "'' is not a whole number"},
      {"maxTemp=5 ", "'5 ' is not a whole number"},
      {"maxTemp=5.5", "'5.5' is not a whole number"},
      {"maxTemp=0x10", "'0x10' is not a whole number"},
      {"maxTemp=99999999999", "'99999999999' is not a whole number"},
      {"maxTemp", "FIELD=VALUE"},
      {"=5", "no field named ''; the fields are maxTemp, minTemp, maxPackVoltage"},
      {"maxtemp=5", "no field named 'maxtemp'"},
      {"maxPackVoltage=32767", "32767"},
      {"minPackVoltage=32768", "from 0 to 32767"},
      {"maxDischargeCurrent=-32768", "from -32767 to 32767"},
  };
  for (const Case& each : cases) {
    dral::LifetimeData data{7, 7, 7, 7, 7, 7};
    try {
      Assign(data, each.assignment);
      const std::size_t index = each.assignment[3] == 'T' ? 0 : 2;
      EXPECT_EQ(std::to_string(LifetimeFields.at(index).Value(data)), each.outcome);
    } catch (const UsageError& error) {
      EXPECT_NE(std::string(error.what()).find(each.outcome), std::string::npos) << error.what();
      EXPECT_EQ(data.maxTemp, 7) << each.assignment;
    }
  }
}

}  // namespace
}  // namespace fuelgauge
