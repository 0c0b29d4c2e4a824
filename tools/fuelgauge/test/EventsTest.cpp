// SPDX-License-Identifier: MIT
#include "watching/Events.hpp"

#include <gtest/gtest.h>

#include <algorithm>

using fuelgauge::Concerns;

// '|' stands for the NUL byte. As the kernel sends them, but for the keys that matter to nobody here.
TEST(Events, WhatIsSaidOfTheSupplyOrItsChipConcernsIt) {
  for (auto [concerns, message] : std::initializer_list<std::pair<bool, std::string>>{
           {true, "|DEVPATH=/i2c-0/0-0055/power_supply/bq27542-0|SUBSYSTEM=power_supply|"},
           {true, "|SUBSYSTEM=power_supply|DEVPATH=/i2c-0/0-0055/power_supply/bq27542-0"},
           {true, "|ACTION=add|DEVPATH=/0-0055/power_supply/bq27542-0/hwmon1|SUBSYSTEM=hwmon|"},
           {false, "|ACTION=remove|DEVPATH=/0-0055/power_supply/bq27542-0/hwmon1|SUBSYSTEM=hwmon|"},
           {true, "|ACTION=bind|DEVPATH=/0-0055|SUBSYSTEM=i2c|MODALIAS=of:NbatT(null)Cti,bq27542|"},
           {false, "|ACTION=bind|DEVPATH=/0-0056|SUBSYSTEM=i2c|MODALIAS=i2c:bq24190|"},
           {false, "|ACTION=add|DEVPATH=/0-0055|SUBSYSTEM=i2c|MODALIAS=i2c:bq27542|"},
           {false, "|DEVPATH=/i2c-0/0-0055/power_supply/bq27542-01|SUBSYSTEM=power_supply|"},
           {false, "|DEVPATH=/power_supply/AC|SUBSYSTEM=power_supply|N=/power_supply/bq27542-0/|"},
           {false, "change@/power_supply/bq27542-0/"},
           {false, ""}}) {
    std::replace(message.begin(), message.end(), '|', '\0');
    EXPECT_EQ(Concerns(message, "bq27542-0"), concerns) << message;
  }
}
