// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace fuelgauge {

/// Prints "fuelgauge: @p text" to standard error, on one line and fit for a terminal; of a long text the
/// beginning and the end.
void Complain(std::string_view text);

/// @return whether all that was printed is out, or nobody reads it any more, as after
///         `fuelgauge list | head -1`, which is no fault of ours; else says once why it is not
bool OutputIsOut();

/// @return whether nobody reads the output any more
bool ReaderIsGone();

}  // namespace fuelgauge
