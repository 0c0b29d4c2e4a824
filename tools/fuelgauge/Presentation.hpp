// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <PropertyValue.hpp>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "Reading.hpp"

/// JSON objects keep their members in the order of the properties and fields.
using Json = nlohmann::ordered_json;

/// @return the enumerator's name
std::string_view StatusName(dral::FuelGaugeStatus status);

/// @return `{"status": …, "value": …}`; the value is null unless the status is Success
Json ToJson(dral::FuelGaugeStatus status, const dral::PropertyValue& value);

/// @return an object with a member for each reading
Json ToJson(const std::vector<Reading>& readings);

/// Prints @p json, readable and with a newline; bytes that are not UTF-8 are replaced.
void Print(const Json& json);

/// The same on one line.
void PrintCompact(const Json& json);

/// @return @p text as a field of a CSV line, in quotes where it needs them
std::string CsvField(const std::string& text);

/// Prints one row of a table: a name, a value and what is worth saying beside it.
void PrintRow(std::string_view name, const std::string& value, const std::string& remark);

/// Prints a row for each field of the record.
void PrintFields(const dral::LifetimeData& data);

/// @return @p text fit for a message: cut when it is long, and without control characters
std::string Printable(std::string_view text);

/// @return @p text with every byte that is not UTF-8 replaced
std::string ToUtf8(const std::string& text);

/// What to say when not one property could be read.
constexpr auto NoGauge = "no property could be read: is there a gauge, and is its driver loaded?";

/// Prints "fuelgauge: @p text" to standard error.
void Complain(std::string_view text);
