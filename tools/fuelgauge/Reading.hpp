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

  bool Succeeded() const { return status == dral::FuelGaugeStatus::Success; }
};

/// Reads the sixteen properties that have a file, in the order of their numbers.
std::vector<Reading> ReadAll(dral::FuelGaugeIF& gauge);

/// The same, but a number that failed, for which there is the status Failure alone, is asked once
/// more as text: the reading then has that status, and tells a missing file from one without data.
std::vector<Reading> ReadAllWithCauses(dral::FuelGaugeIF& gauge);

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
