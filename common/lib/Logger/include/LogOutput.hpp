// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "LogClient.hpp"

namespace dral {

/// A finished record.
struct LogRecord {
  std::string_view source;    ///< the source file
  std::string_view function;  ///< the function's unqualified name
  int line = 0;               ///< in that file
  LogLevel level{};           ///< how much it matters
  LogCategory category{};     ///< as the record's author gave it
  std::string text;           ///< the pieces, joined
};

/// Where this process's records go, and which of them.
///
/// By default each goes to standard error in one write, as journald reads it:
/// `<level>source:function:line: text`, on one line. A level above 7 is shown as 7, a byte that is not
/// printable ASCII as `\x0a`. Errors (level 3 and below) are on; the environment variable
/// `KESP_LOG_LEVEL` names another highest level. Thread-safe.
class LogOutput {
 public:
  /// Turns on the levels up to @p highest, whatever the environment says.
  static void SetLevel(LogLevel highest);

  /// Called with each record, by one thread at a time. It must not log.
  using Sink = std::function<void(const LogRecord&)>;

  /// Sends records to @p sink from now on; an empty one means standard error.
  static void SetSink(Sink sink);
};

}  // namespace dral
