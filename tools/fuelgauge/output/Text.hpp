// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace fuelgauge {

/// @return @p text as UTF-8 without control characters, those of C1 and of the direction of writing
///         included: bytes that are not UTF-8 are replaced by U+FFFD, control characters by escapes such
///         as "\u001b". No text of a device or of a user can then steer a terminal, or be shown in
///         another order than it has.
std::string TerminalSafe(std::string_view text);

}  // namespace fuelgauge
