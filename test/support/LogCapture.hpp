// SPDX-License-Identifier: MIT
#pragma once

#include <LogOutput.hpp>
#include <cerrno>
#include <string>
#include <utility>

/// Takes the process's log records while it lives.
class LogCapture {
 public:
  explicit LogCapture(unsigned level = 8) {
    dral::LogOutput::SetLevel(dral::LogLevel{level});
    dral::LogOutput::SetSink([this](const dral::LogRecord& record) {
      // All of the library's records share a folder and a category; what differs is shown in full.
      const std::string folder = "common/lib/FuelGauge/src/";
      const bool ours = record.category == dral::LogCategory{32772};
      lines += std::to_string(static_cast<unsigned>(record.level)) + " " +
               std::string(record.source).substr(ours ? folder.size() : 0) + " " +
               std::string(record.function) + ": " + record.text + "\n";
      errno = E2BIG;  // a logger may leave anything there
    });
  }
  ~LogCapture() { dral::LogOutput::SetSink({}); }

  /// @return the records since the last call, each as a line "level source function: text"
  std::string Take() { return std::exchange(lines, {}); }

 private:
  std::string lines;
};
