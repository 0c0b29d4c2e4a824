// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace fuelgauge {

/// Judges a lifetime override file before the library reads it: the library ignores, cuts or replaces
/// what it cannot use, and says so in its log alone. Here each value arrives as written, or none does.
/// @throws UsageError when @p path cannot be read, or naming its bad entry
void CheckLifetimeFile(const std::string& path);

}  // namespace fuelgauge
