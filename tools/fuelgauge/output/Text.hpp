// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace fuelgauge {

/// @return @p text as UTF-8 without control characters, those of C1 and of the direction of writing
///         included: bytes that are not UTF-8 are replaced by U+FFFD, control characters by escapes such
///         as "\u001b". No text of a device or of a user can then steer a terminal, or be shown in
///         another order than it has.
std::string TerminalSafe(std::string_view text);

/// @return the same in quotes, with @p escape before each quote and each @p escape in it
std::string Quoted(std::string_view text, char escape);

/// @return the first character of @p text (UTF-8), which is not empty
std::string_view FirstCharacter(std::string_view text);

/// @return how many columns of a terminal @p text (UTF-8) takes. A character that some terminals show
///         narrow and others wide counts as wide.
std::size_t Columns(std::string_view text);

/// @return as many of the first characters of @p text as fit into @p columns
std::string_view CutTo(std::size_t columns, std::string_view text);

}  // namespace fuelgauge
