// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace fuelgauge {

/// @return @p text fit for a message: cut when it is long, and without control characters
std::string Printable(std::string_view text);

/// @return @p text with every byte that is not UTF-8 replaced
std::string ToUtf8(const std::string& text);

}  // namespace fuelgauge
