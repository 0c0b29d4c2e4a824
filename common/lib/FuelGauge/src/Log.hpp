// SPDX-License-Identifier: MIT
#pragma once

#include <LogClient.hpp>

#include "KeepErrno.hpp"

namespace dral {

inline constexpr auto LogFailure = static_cast<LogLevel>(3);
inline constexpr auto LogRepair = static_cast<LogLevel>(6);
inline constexpr auto LogProgress = static_cast<LogLevel>(8);

// The number that the platform's logger knows the fuel gauge by.
inline constexpr auto LogFuelGauge = static_cast<LogCategory>(0x8004);

}  // namespace dral

/// Begins a log record: `KESP_LOG("Writable", LogFailure) << "text" << number;`. The pieces are
/// joined as they are, and not evaluated when the level is off. A class gives its own name, the same in
/// its header and its source, since compiler options may change `__FILE__`. Whatever the logger does,
/// errno stays the reason of the failure.
#define KESP_LOG(name, level)                                                               \
  if (const ::dral::KeepErrno keepErrno; !::dral::LogClient::LevelIsEnabled(level)) {       \
  } else                                                                                    \
    ::dral::LogClient("common/lib/FuelGauge/src/" name, static_cast<const char*>(__func__), \
                      __LINE__, level, ::dral::LogFuelGauge)
