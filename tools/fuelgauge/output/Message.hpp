// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace fuelgauge {

/// What to say when not one property could be read.
constexpr auto NoGauge = "no property could be read: is there a gauge, and is its driver loaded?";

/// Prints "fuelgauge: @p text" to standard error.
void Complain(std::string_view text);

}  // namespace fuelgauge
