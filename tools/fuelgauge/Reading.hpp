// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <optional>
#include <string>
#include <vector>

#include "Property.hpp"

/// One property as it was read, in its natural type.
struct Reading {
  const Property* property;
  dral::FuelGaugeStatus status;
  dral::PropertyValue value;
  /// The status, or for a number, whose failure has but one: that of a second read, as text.
  dral::FuelGaugeStatus cause;

  bool Succeeded() const { return status == dral::FuelGaugeStatus::Success; }
};

/// Reads the sixteen properties that have a file, in the order of their numbers.
std::vector<Reading> ReadAll(dral::FuelGaugeIF& gauge);

/// @return the reading of @p id
const Reading& Of(const std::vector<Reading>& readings, dral::FuelGaugeProperty id);

/// @return whether any of them could be read
bool AnySucceeded(const std::vector<Reading>& readings);

/// @return the number, a flag as 0 or 1; none when it was not read or is no number
std::optional<int> Number(const Reading& reading);

/// @return the text; none when it was not read or is no text
std::optional<std::string> Text(const Reading& reading);

/// @return the value as people say it, such as "3.786 V", "yes" or "Full"; "-" when it was not
///         read, nothing for the record
std::string ForPeople(const Reading& reading);
