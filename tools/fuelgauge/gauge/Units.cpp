// SPDX-License-Identifier: MIT
#include "gauge/Units.hpp"

#include <algorithm>
#include <cstdlib>

#include "gauge/Concat.hpp"

namespace fuelgauge {

std::string Decimal(std::int64_t number, std::size_t decimals) {
  std::string digits = std::to_string(std::abs(number));
  digits.insert(0, decimals + 1 - std::min(decimals + 1, digits.size()), '0');
  if (decimals > 0) {
    digits.insert(digits.size() - decimals, 1, '.');
  }
  return (number < 0 ? "-" : "") + digits;
}

std::string Raw(std::int64_t number, const Unit& unit) {
  return Concat(number, " ", unit.symbol);
}

std::string ForPeople(std::int64_t number, const Unit& unit) {
  const std::int64_t magnitude = (std::abs(number) + unit.divisor / 2) / unit.divisor;
  if (magnitude == 0 && number != 0) {
    return Raw(number, unit);
  }
  if (unit == units::Second) {
    return Concat(number < 0 ? "-" : "", magnitude / 60, magnitude % 60 < 10 ? ":0" : ":",
                  magnitude % 60, " h");
  }
  const std::string text = Decimal(number < 0 ? -magnitude : magnitude, unit.decimals);
  return unit.forPeople.empty() ? text : Concat(text, " ", unit.forPeople);
}

std::string Exact(std::int64_t number, const Unit& unit) {
  return number % unit.divisor == 0 ? ForPeople(number, unit) : Raw(number, unit);
}

}  // namespace fuelgauge
