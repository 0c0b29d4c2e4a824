// SPDX-License-Identifier: MIT
#include "output/Metrics.hpp"

#include <gtest/gtest.h>

#include "output/MetricsText.hpp"
#include "test/Readings.hpp"

namespace fuelgauge {
namespace {

using enum dral::FuelGaugeProperty;

bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(MetricsText, NumbersAreExact) {
  struct Case {
    std::int64_t number;
    int decimals;
    std::string text;
  };
  const Case cases[] = {
      {3786000, 6, "3.786"},
      {-412000, 6, "-0.412"},
      {1, 6, "0.000001"},
      {0, 6, "0"},
      {-5, 1, "-0.5"},
      {100, 2, "1"},
      {65535, 2, "655.35"},
      {4000000, 6, "4"},
      {2147483647LL * 36, 4, "7730941.1292"},
      {-2147483648LL * 36, 4, "-7730941.1328"},
      {120, 0, "120"},
  };
  for (const Case& each : cases) {
    MetricsText text;
    text.Family("x_volts", "gauge", "X.");
    text.Sample(each.number, each.decimals);
    EXPECT_EQ(text.Text(),
              "# HELP fuelgauge_x_volts X.\n# TYPE fuelgauge_x_volts gauge\n"
              "fuelgauge_x_volts{power_supply=\"\"} " +
                  each.text + "\n");
  }
}

TEST(MetricsText, LabelsAreEscapedAndUtf8) {
  MetricsText text;
  text.Family("x", "gauge", "X.");
  text.Sample(1, 0, {{"a", "q\"b\\n\nµ"}, {"b", "\xff\xc3(\t"}});
  EXPECT_TRUE(Holds(text.Text(),
                    "\nfuelgauge_x{power_supply=\"\",a=\"q\\\"b\\\\n\\\\u000aµ\",b=\"\uFFFD\uFFFD("
                    "\\\\u0009\"} 1\n"))
      << text.Text();
}

TEST(Metrics, WhatCouldNotBeReadIsLeftOut) {
  const std::string text = MetricsOf({{"a", ReadingsOf({{VoltageNow, 3786000}, {Present, true}})},
                                      {"b", ReadingsOf({{VoltageNow, 1}})}});
  EXPECT_TRUE(Holds(text,
                    "gauge\nfuelgauge_voltage_volts{power_supply=\"a\"} 3.786\n"
                    "fuelgauge_voltage_volts{power_supply=\"b\"} 0.000001\n"));
  EXPECT_TRUE(Holds(text, "\nfuelgauge_present{power_supply=\"a\"} 1\n"));
  for (const auto* absent : {"current", "charge", "temperature", "lifetime", "info", "health"}) {
    EXPECT_FALSE(Holds(text, std::string("fuelgauge_") + absent)) << text;
  }
  EXPECT_TRUE(
      Holds(text, "fuelgauge_read_success{power_supply=\"b\",property=\"VoltageNow\"} 1\n"));
  EXPECT_TRUE(
      Holds(text, "fuelgauge_read_success{power_supply=\"a\",property=\"CurrentNow\"} 0\n"));
  EXPECT_TRUE(Holds(text, "power_supply=\"a\",property=\"Health\",error=\"no data\"} 1\n"));
  EXPECT_FALSE(Holds(text, "property=\"VoltageNow\",error"));
  EXPECT_TRUE(Holds(text, "power_supply=\"b\",rule=\"voltage-range\",severity=\"error\"} 1\n"));
}

TEST(Metrics, AStateIsOneOfItsSeriesKnownToUsOrNot) {
  const std::string text =
      MetricsOf({{"", ReadingsOf({{Status, "Full"}, {Health, "Blown fuse"}})}});
  EXPECT_TRUE(Holds(text, "fuelgauge_status{power_supply=\"\",state=\"Full\"} 1\n"));
  EXPECT_TRUE(Holds(text, "fuelgauge_status{power_supply=\"\",state=\"Discharging\"} 0\n"));
  EXPECT_TRUE(Holds(text, "fuelgauge_health{power_supply=\"\",state=\"Good\"} 0\n"));
  EXPECT_TRUE(Holds(text, "fuelgauge_health{power_supply=\"\",state=\"Blown fuse\"} 1\n"));
}

TEST(Metrics, TheRecordIsInBaseUnits) {
  const std::string text = MetricsOf({{"", ReadingsOf({{LifetimeData, dral::LifetimeData()}})}});
  EXPECT_TRUE(Holds(
      text, "fuelgauge_lifetime_temperature_celsius{power_supply=\"\",extreme=\"min\"} -20\n"));
  EXPECT_TRUE(Holds(
      text, "fuelgauge_lifetime_pack_voltage_volts{power_supply=\"\",extreme=\"max\"} 4.45\n"));
  EXPECT_TRUE(Holds(
      text,
      "fuelgauge_lifetime_current_amperes{power_supply=\"\",extreme=\"max_discharge\"} -1.5\n"));
}

}  // namespace
}  // namespace fuelgauge
