// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <sstream>
#include <string_view>

namespace dral {

/// How much a record matters: syslog's numbers (3 errors, 6 information, 7 debugging), and above
/// them ever finer detail.
enum class LogLevel : std::uint32_t {};

/// Which part of a system a record comes from; the logger only passes it on.
enum class LogCategory : std::uint32_t {};

/// One log record. Pieces are streamed into it, joined as they are; it is emitted when it ends.
class LogClient {
 public:
  /// Thread-safe.
  static bool LevelIsEnabled(LogLevel level);

  /// Keeps no copy: @p source and @p function must outlive the record.
  LogClient(std::string_view source, std::string_view function, int line, LogLevel level,
            LogCategory category);
  /// Emits the record (see `LogOutput`), in whatever state it is; throws nothing.
  ~LogClient();
  LogClient(const LogClient&) = delete;
  LogClient& operator=(const LogClient&) = delete;

  /// Adds whatever an ostream can write, in the classic locale.
  template <typename T>
  LogClient& operator<<(const T& piece) {
    text << piece;
    return *this;
  }

 private:
  std::string_view source;
  std::string_view function;
  int line;
  LogLevel level;
  LogCategory category;
  std::ostringstream text;
};

}  // namespace dral
