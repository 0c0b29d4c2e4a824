// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// @return @p text as a field of a CSV line: UTF-8 without control characters, in quotes where it needs
///         them
std::string CsvField(std::string_view text);

/// Prints the names of the properties that are numbers or texts, behind "time".
void PrintCsvHeader();

/// Prints @p time and their values, raw; a value that was not read is an empty field.
void PrintCsvLine(const std::string& time, const Readings& readings);

}  // namespace fuelgauge
