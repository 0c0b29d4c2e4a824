// SPDX-License-Identifier: MIT
#pragma once

#include <LogClient.hpp>
#include <string_view>

namespace dral {

inline constexpr auto LogFailure = static_cast<LogLevel>(3);
inline constexpr auto LogRepair = static_cast<LogLevel>(6);
inline constexpr auto LogProgress = static_cast<LogLevel>(8);
inline constexpr auto LogFuelGauge = static_cast<LogCategory>(0x8004);

/// The source of a record: its file without the extension, so that a class has one name in the log
/// whether its header or its source speaks. The build gives `__FILE__` from the project's root.
constexpr std::string_view LogSource(std::string_view file) {
  return file.substr(0, file.rfind('.'));
}

}  // namespace dral

/// Begins a log record: `KESP_LOG(LogFailure) << "text" << number;`. The pieces are joined as they
/// are, and none of them is evaluated when the level is off.
#define KESP_LOG(level)                                                                          \
  if (!::dral::LogClient::LevelIsEnabled(level)) {                                               \
  } else                                                                                         \
    ::dral::LogClient(::dral::LogSource(__FILE__), static_cast<const char*>(__func__), __LINE__, \
                      level, ::dral::LogFuelGauge)
