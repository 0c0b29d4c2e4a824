// SPDX-License-Identifier: MIT
#pragma once

#include <LifetimeData.hpp>
#include <string>

namespace fuelgauge {

/// Reads a lifetime override file, more strictly than the library, which ignores, cuts or replaces what
/// it cannot use, and says so in its log alone. Here each value arrives as written, or none does.
/// @throws UsageError when @p path cannot be read, or naming its bad entry
dral::LifetimeData ReadLifetimeFile(const std::string& path);

}  // namespace fuelgauge
