// SPDX-License-Identifier: MIT
// Runs where a simulated gauge stands at the real sysfs path (see simulation/with-gauge).
#include <gtest/gtest.h>
#include <FuelGaugeIF.hpp>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"

using dral::FuelGaugeIF;
using dral::FuelGaugeProperty;
using dral::InterfaceFactory;
using dral::LifetimeData;
using dral::PropertyValue;

namespace {

TEST(FixedPath, TheFactorysGaugeReadsEveryProperty) {
  LogCapture log(3);
  const auto gauge =
      InterfaceFactory::Create<FuelGaugeIF, std::string_view>("Bq27542FuelGauge", "");
  const std::pair<PropertyValue, std::string> cases[] = {
      {"", "0 string Texas Instruments"},
      {"", "0 string Li-ion"},
      {"", "0 string Discharging"},
      {false, "0 bool true"},
      {0, "0 int 3786000"},
      {0, "0 int -412000"},
      {0U, "0 uint 74"},
      {"", "0 string Normal"},
      {0, "0 int 251"},
      {0U, "0 uint 1553000"},
      {0U, "0 uint 2058000"},
      {0, "0 int 96"},
      {0, "0 int -1560000"},
      {"", "0 string Good"},
      {0, "0 int 13560"},
      {LifetimeData{}, "0 record " + Bytes({521, -34, 4342, 2987, 2140, -1873})},
  };
  std::uint32_t number = 0;
  for (const auto& [hint, answer] : cases) {
    EXPECT_EQ(Describe(gauge->Get(FuelGaugeProperty{number++}, hint)), answer);
  }
  LifetimeData record{1, 2, 3, 4, 5, 6};
  record.reserved.fill(0xEE);
  EXPECT_EQ(Describe(gauge->Set(FuelGaugeProperty::LifetimeData, record)), "0");
  EXPECT_EQ(Describe(gauge->Get(FuelGaugeProperty::LifetimeData, record)),
            "0 record " + Bytes(record));
  EXPECT_EQ(Describe(gauge->Reset(FuelGaugeProperty::LifetimeData)), "0");
  EXPECT_EQ(Describe(gauge->Get(FuelGaugeProperty::LifetimeData, record)),
            "0 record " + Bytes(LifetimeData{}));
  EXPECT_EQ(log.Take(), "");
}

}  // namespace
