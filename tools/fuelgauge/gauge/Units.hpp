// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuelgauge {

/// The unit in which the kernel or the gauge counts a number, and the one that people use.
struct Unit {
  std::string_view symbol;
  std::int64_t divisor;  ///< from the kernel's number to the last digit that people see
  std::size_t decimals;
  std::string_view forPeople;

  bool operator==(const Unit&) const = default;
};

namespace units {
constexpr Unit None = {"", 1, 0, ""};
constexpr Unit Microvolt = {"µV", 1000, 3, "V"};
constexpr Unit Microampere = {"µA", 1000, 0, "mA"};
constexpr Unit Percent = {"%", 1, 0, "%"};
constexpr Unit TenthDegreeCelsius = {"× 0.1 °C", 1, 1, "°C"};
constexpr Unit MicroampereHour = {"µAh", 1000, 0, "mAh"};
constexpr Unit TenthMilliampereHour = {"× 0.1 mAh", 1, 1, "mAh"};
constexpr Unit Microwatt = {"µW", 1000, 0, "mW"};
constexpr Unit Second = {"s", 60, 0, "h:mm"};
constexpr Unit Millivolt = {"mV", 1, 3, "V"};
constexpr Unit Milliampere = {"mA", 1, 0, "mA"};
}  // namespace units

/// @return @p number divided by ten to the @p decimals, exactly, such as "-0.050"
std::string Decimal(std::int64_t number, std::size_t decimals);

/// @return @p number as it was read, such as "3786000 µV"
std::string Raw(std::int64_t number, const Unit& unit);

/// @return @p number in the unit that people use, such as "3.786 V"; rounded to its last digit, or as
///         it was read where that would make it 0
std::string ForPeople(std::int64_t number, const Unit& unit);

/// @return the same, but as it was read where it would have to be rounded
std::string Exact(std::int64_t number, const Unit& unit);

}  // namespace fuelgauge
