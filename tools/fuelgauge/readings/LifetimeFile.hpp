// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace fuelgauge {

/// Judges a lifetime override file before the library reads it: the library ignores what it cannot
/// read and what it does not know, and says so in its log alone.
/// @throws UsageError when @p path cannot be read, or naming its bad entry
void CheckLifetimeFile(const std::string& path);

}  // namespace fuelgauge
