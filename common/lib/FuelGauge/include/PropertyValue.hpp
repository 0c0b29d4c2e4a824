// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>

#include "LifetimeData.hpp"

namespace dral {

/// One value of a property. On a write, its alternative decides how the file is written; on a read,
/// it is a hint whose alternative decides how the file is parsed and whose content is ignored.
/// A `LifetimeData` stands for the 32-byte binary record, every other alternative for text.
using PropertyValue = std::variant<std::string, int, unsigned int, bool, LifetimeData>;

}  // namespace dral
