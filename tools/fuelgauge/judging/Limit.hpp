// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "judging/Rules.hpp"

namespace fuelgauge {

enum class Bound { Minimum, Maximum };

/// @return a rule that a number keeps the limit that @p text names, such as "StateOfCharge=20" in the
///         kernel's unit; a number that was not read breaks it, since nobody knows
/// @throws UsageError naming what is wrong
Rule LimitOf(Bound bound, std::string_view text);

}  // namespace fuelgauge
