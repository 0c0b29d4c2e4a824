// SPDX-License-Identifier: MIT
#pragma once

#include <LogOutput.hpp>
#include <string>
#include <utility>

/// Takes the process's log records while it lives.
class LogCapture {
 public:
  explicit LogCapture(unsigned level = 8) {
    dral::LogOutput::SetLevel(dral::LogLevel{level});
    dral::LogOutput::SetSink([this](const dral::LogRecord& record) { lines += Line(record); });
  }
  ~LogCapture() { dral::LogOutput::SetSink({}); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  /// @return what @p call answers with every level off
  template <typename Call>
  static auto Quietly(Call call) {
    dral::LogOutput::SetLevel(dral::LogLevel{0});
    auto answer = call();
    dral::LogOutput::SetLevel(dral::LogLevel{8});
    return answer;
  }

  /// @return the records since the last call, each as a line "level source function: text"
  std::string Take() { return std::exchange(lines, {}); }

 private:
  // All of the library's records share a folder and a category; what differs is shown in full.
  static std::string Line(const dral::LogRecord& record) {
    const std::string_view folder = "common/lib/FuelGauge/src/";
    std::string source(record.source);
    if (source.starts_with(folder) && record.category == dral::LogCategory{32772}) {
      source.erase(0, folder.size());
    }
    return std::to_string(static_cast<unsigned>(record.level)) + " " + source + " " +
           std::string(record.function) + ": " + record.text + "\n";
  }

  std::string lines;
};
