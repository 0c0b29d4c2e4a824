// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "gauge/LifetimeField.hpp"

namespace fuelgauge {

/// The fields of the lifetime record that a user names, and their values.
using FieldValues = std::map<const LifetimeField*, int>;

/// @return what words such as "maxTemp=550" say
/// @throws UsageError naming the bad word
FieldValues ParseAssignments(const std::vector<std::string>& words);

/// Stores @p values in @p record.
/// @throws UsageError naming a minimum that is then above its maximum, where a user named one of the two
void Store(const FieldValues& values, dral::LifetimeData& record);

/// Reads a lifetime override file, more strictly than the library, which ignores, cuts or replaces what
/// it cannot use, and says so in its log alone. Here each value arrives as written, or none does.
/// @throws UsageError when @p path cannot be read, or naming its bad entry
dral::LifetimeData ReadLifetimeFile(const std::string& path);

}  // namespace fuelgauge
