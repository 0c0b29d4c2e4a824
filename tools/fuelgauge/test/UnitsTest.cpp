// SPDX-License-Identifier: MIT
#include "gauge/Units.hpp"

#include <gtest/gtest.h>

#include <tuple>

namespace fuelgauge {
namespace {

TEST(Units, NumbersReadAsPeopleSayThem) {
  const std::tuple<std::int64_t, Unit, std::string> cases[] = {
      {499, Unit::Microvolt, "499 µV"},
      {-432327, Unit::Microampere, "-432 mA"},
      {-499, Unit::Microampere, "-499 µA"},
      {500, Unit::Microampere, "1 mA"},
      {-5, Unit::TenthDegreeCelsius, "-0.5 °C"},
      {2147483647, Unit::MicroampereHour, "2147484 mAh"},
      {-2147483648, Unit::Microwatt, "-2147484 mW"},
      {1249920, Unit::Second, "347:12 h"},
      {59, Unit::Second, "0:01 h"},
  };
  for (const auto& [number, unit, text] : cases) {
    EXPECT_EQ(ForPeople(number, unit), text);
  }
}

}  // namespace
}  // namespace fuelgauge
