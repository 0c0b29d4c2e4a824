// SPDX-License-Identifier: MIT
#include "LogStatement.hpp"

namespace dral {

// The number that the platform's logger knows the fuel gauge by.
constexpr auto LogFuelGauge = static_cast<LogCategory>(0x8004);

bool LogStatement::IsEnabled(LogLevel level) {
  const KeepErrno keep;
  return LogClient::LevelIsEnabled(level);
}

LogStatement::LogStatement(const char* source, const char* function, int line, LogLevel level)
    : client(source, function, line, level, LogFuelGauge) {}

LogStatement::~LogStatement() = default;

}  // namespace dral
