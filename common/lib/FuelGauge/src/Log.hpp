// SPDX-License-Identifier: MIT
#pragma once

#include "LogStatement.hpp"

namespace dral {

inline constexpr auto LogFailure = static_cast<LogLevel>(3);
inline constexpr auto LogRepair = static_cast<LogLevel>(6);
inline constexpr auto LogProgress = static_cast<LogLevel>(8);

}  // namespace dral

/// Begins a log record: `KESP_LOG("Writable", LogFailure) << "text" << number;`. The pieces are
/// joined as they are, and not evaluated when the level is off. A class gives its own name, the same in
/// its header and its source, since compiler options may change `__FILE__`.
#define KESP_LOG(name, level)                                                                  \
  if (!::dral::LogStatement::IsEnabled(level)) {                                               \
  } else                                                                                       \
    ::dral::LogStatement("common/lib/FuelGauge/src/" name, static_cast<const char*>(__func__), \
                         __LINE__, level)
