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
      {"maxTemp=-32768", "-32768"},
      {"maxTemp=32768", "'maxTemp=32768': the value must be from -32768 to 32767"},
      {"maxTemp=-32769", "from -32768 to 32767"},
      {"maxTemp=", "'' is not a whole number"},
      {"maxTemp=5 ", "'5 ' is not a whole number"},
      {"maxTemp=+5", "'+5' is not a whole number"},
      {"maxTemp=1=2", "'1=2' is not a whole number"},
      {"maxTemp", "FIELD=VALUE"},
      {"", "FIELD=VALUE"},
      {"=5", "no field named ''; the fields are maxTemp, minTemp, maxPackVoltage"},
      {"maxtemp=5", "no field named 'maxtemp'"},
      {"maxPackVoltage=65535", "65535"},
      {"maxPackVoltage=-1", "not a whole number that the field can hold"},
      {"minPackVoltage=65536", "from 0 to 65535"},
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
