// SPDX-License-Identifier: MIT
#pragma once

#include <LogClient.hpp>

#include "KeepErrno.hpp"

namespace dral {

/// What `KESP_LOG` makes: one log record, whose logger cannot change `errno`.
class LogStatement {
 public:
  static bool IsEnabled(LogLevel level);

  LogStatement(const char* source, const char* function, int line, LogLevel level);
  ~LogStatement();
  LogStatement(const LogStatement&) = delete;
  LogStatement& operator=(const LogStatement&) = delete;

  template <typename T>
  LogStatement& operator<<(const T& piece) {
    client << piece;
    return *this;
  }

 private:
  const KeepErrno keep;  // goes last
  LogClient client;
};

}  // namespace dral
