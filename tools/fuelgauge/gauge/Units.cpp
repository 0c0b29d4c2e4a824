// SPDX-License-Identifier: MIT
#include "gauge/Units.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

#include "gauge/Concat.hpp"

namespace fuelgauge {

namespace {

struct UnitInfo {
  Unit unit;
  std::string_view symbol;
  std::int64_t divisor;  // from the kernel's number to the last digit shown
  std::size_t decimals;
  std::string_view forPeople;
};

constexpr std::array Units = {
    UnitInfo{Unit::None, "", 1, 0, ""},
    UnitInfo{Unit::Microvolt, "µV", 1000, 3, "V"},
    UnitInfo{Unit::Microampere, "µA", 1000, 0, "mA"},
    UnitInfo{Unit::Percent, "%", 1, 0, "%"},
    UnitInfo{Unit::TenthDegreeCelsius, "× 0.1 °C", 1, 1, "°C"},
    UnitInfo{Unit::MicroampereHour, "µAh", 1000, 0, "mAh"},
    UnitInfo{Unit::TenthMilliampereHour, "× 0.1 mAh", 1, 1, "mAh"},
    UnitInfo{Unit::Microwatt, "µW", 1000, 0, "mW"},
    UnitInfo{Unit::Second, "s", 60, 0, "h:mm"},
    UnitInfo{Unit::Millivolt, "mV", 1, 3, "V"},
    UnitInfo{Unit::Milliampere, "mA", 1, 0, "mA"},
};

const UnitInfo& Info(Unit unit) {
  return *std::find_if(Units.begin(), Units.end(),
                       [unit](const UnitInfo& info) { return info.unit == unit; });
}

}  // namespace

std::string Decimal(std::int64_t number, std::size_t decimals) {
  std::string digits = std::to_string(std::abs(number));
  digits.insert(0, decimals + 1 - std::min(decimals + 1, digits.size()), '0');
  if (decimals > 0) {
    digits.insert(digits.size() - decimals, 1, '.');
  }
  return (number < 0 ? "-" : "") + digits;
}

std::string Raw(std::int64_t number, Unit unit) {
  return Concat(number, " ", Info(unit).symbol);
}

std::string ForPeople(std::int64_t number, Unit unit) {
  const UnitInfo& info = Info(unit);
  const std::int64_t magnitude = (std::abs(number) + info.divisor / 2) / info.divisor;
  if (magnitude == 0 && number != 0) {
    return Raw(number, unit);
  }
  if (unit == Unit::Second) {
    return Concat(number < 0 ? "-" : "", magnitude / 60, magnitude % 60 < 10 ? ":0" : ":",
                  magnitude % 60, " h");
  }
  const std::string text = Decimal(number < 0 ? -magnitude : magnitude, info.decimals);
  return info.forPeople.empty() ? text : Concat(text, " ", info.forPeople);
}

std::string Exact(std::int64_t number, Unit unit) {
  return number % Info(unit).divisor == 0 ? ForPeople(number, unit) : Raw(number, unit);
}

}  // namespace fuelgauge
