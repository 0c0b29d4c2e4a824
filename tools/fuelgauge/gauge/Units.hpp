// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace fuelgauge {

/// The unit in which the kernel or the gauge counts a number.
enum class Unit {
  None,
  Microvolt,
  Microampere,
  Percent,
  TenthDegreeCelsius,
  MicroampereHour,
  TenthMilliampereHour,
  Microwatt,
  Second,
  Millivolt,
  Milliampere,
};

/// @return @p number divided by ten to the @p decimals, exactly, such as "-0.050"
std::string Decimal(std::int64_t number, std::size_t decimals);

/// @return @p number as it was read, such as "3786000 µV"
std::string Raw(std::int64_t number, Unit unit);

/// @return @p number in the unit that people use, such as "3.786 V"; rounded to its last digit, or as
///         it was read where that would make it 0
std::string ForPeople(std::int64_t number, Unit unit);

/// @return the same, but as it was read where it would have to be rounded
std::string Exact(std::int64_t number, Unit unit);

}  // namespace fuelgauge
