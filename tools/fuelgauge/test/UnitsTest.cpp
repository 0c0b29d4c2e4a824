// SPDX-License-Identifier: MIT
#include "readings/Units.hpp"

#include <gtest/gtest.h>

namespace fuelgauge {
namespace {

TEST(Units, NumbersReadAsPeopleSayThem) {
  struct Case {
    std::int64_t number;
    Unit unit;
    std::string text;
  };
  const Case cases[] = {
      {3942000, Unit::Microvolt, "3.942 V"},
      {499, Unit::Microvolt, "499 µV"},
      {-432327, Unit::Microampere, "-432 mA"},
      {-499, Unit::Microampere, "-499 µA"},
      {500, Unit::Microampere, "1 mA"},
      {0, Unit::Microampere, "0 mA"},
      {65535, Unit::Percent, "65535 %"},
      {-5, Unit::TenthDegreeCelsius, "-0.5 °C"},
      {-2731, Unit::TenthDegreeCelsius, "-273.1 °C"},
      {2147483647, Unit::MicroampereHour, "2147484 mAh"},
      {-2147483648, Unit::Microwatt, "-2147484 mW"},
      {1249920, Unit::Second, "347:12 h"},
      {59, Unit::Second, "0:01 h"},
      {65535, Unit::Millivolt, "65.535 V"},
      {960, Unit::None, "960"},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(ForPeople(each.number, each.unit), each.text);
  }
}

}  // namespace
}  // namespace fuelgauge
