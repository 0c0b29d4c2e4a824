// SPDX-License-Identifier: MIT
#pragma once

#include <LifetimeData.hpp>
#include <cstddef>
#include <string>
#include <string_view>

namespace fuelgauge {

/// Where a row's name and value end.
constexpr std::size_t NameColumns = 26;
constexpr std::size_t ValueColumns = 20;

/// @return @p text with blanks after it, up to @p width columns
std::string PadTo(std::size_t width, std::string text);

/// @return one row of a table, fit for a terminal: a name, a value and what is worth saying beside it
std::string Row(std::string_view name, std::string_view value, std::string_view remark);

void PrintRow(std::string_view name, std::string_view value, std::string_view remark);

void PrintFields(const dral::LifetimeData& data);

}  // namespace fuelgauge
