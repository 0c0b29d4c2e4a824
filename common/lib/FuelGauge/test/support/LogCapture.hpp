// SPDX-License-Identifier: MIT
#pragma once

#include <LogOutput.hpp>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

/// Takes the process's log records while it lives, each as one line of text.
class LogCapture {
 public:
  explicit LogCapture(unsigned level = 8) {
    dral::LogOutput::SetLevel(static_cast<dral::LogLevel>(level));
    dral::LogOutput::SetSink([this](const dral::LogRecord& record) {
      records.push_back(std::to_string(static_cast<unsigned>(record.level)) + " " +
                        std::to_string(static_cast<unsigned>(record.category)) + " " +
                        std::string(record.source) + " " + std::string(record.function) + ": " +
                        record.text);
    });
  }
  ~LogCapture() { dral::LogOutput::SetSink({}); }
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

  /// @return the records since the last call
  std::vector<std::string> Take() { return std::exchange(records, {}); }

 private:
  std::vector<std::string> records;
};

/// The line of a record of the class @p source, for comparison with those captured.
inline std::string Record(unsigned level, const std::string& source, const std::string& function,
                          const std::string& text) {
  return std::to_string(level) + " 32772 common/lib/FuelGauge/src/" + source + " " + function +
         ": " + text;
}
