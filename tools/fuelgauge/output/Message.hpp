// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace fuelgauge {

/// Prints "fuelgauge: @p text" to standard error, on one line and fit for a terminal.
void Complain(std::string_view text);

/// @return whether nobody reads the output any more, as after `fuelgauge list | head -1`: no fault of ours
bool ReaderIsGone();

}  // namespace fuelgauge
