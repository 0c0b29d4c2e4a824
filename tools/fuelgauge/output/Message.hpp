// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace fuelgauge {

/// Prints "fuelgauge: @p text" to standard error, on one line and fit for a terminal.
void Complain(std::string_view text);

}  // namespace fuelgauge
