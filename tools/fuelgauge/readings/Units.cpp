// SPDX-License-Identifier: MIT
#include "readings/Units.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>

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

std::string Digits(std::int64_t number, std::size_t least) {
  std::string digits = std::to_string(number);
  digits.insert(0, least - std::min(least, digits.size()), '0');
  return digits;
}

}  // namespace

std::string Raw(std::int64_t number, Unit unit) {
  return std::to_string(number).append(" ").append(Info(unit).symbol);
}

std::string ForPeople(std::int64_t number, Unit unit) {
  const UnitInfo& info = Info(unit);
  const std::int64_t magnitude = (std::abs(number) + info.divisor / 2) / info.divisor;
  if (magnitude == 0 && number != 0) {
    return Raw(number, unit);
  }
  std::string text = number < 0 ? "-" : "";
  if (unit == Unit::Second) {
    return text.append(std::to_string(magnitude / 60))
        .append(":")
        .append(Digits(magnitude % 60, 2))
        .append(" h");
  }
  std::string digits = Digits(magnitude, info.decimals + 1);
  if (info.decimals > 0) {
    digits.insert(digits.size() - info.decimals, 1, '.');
  }
  text.append(digits);
  return info.forPeople.empty() ? text : text.append(" ").append(info.forPeople);
}

std::string Exact(std::int64_t number, Unit unit) {
  return number % Info(unit).divisor == 0 ? ForPeople(number, unit) : Raw(number, unit);
}

}  // namespace fuelgauge
