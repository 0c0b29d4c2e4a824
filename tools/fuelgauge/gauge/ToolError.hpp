// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <exception>
#include <string>
#include <utility>

namespace fuelgauge {

/// How the command ends. Those of FuelGaugeStatus are the gauge's own answer.
enum class ExitStatus : int {
  Success = 0,
  Findings = 1,  ///< `check` found something
  Failure = 2,
  FileError = 3,
  NoData = 4,
  ReadBackDiffers = 5,  ///< a write went through, but the gauge holds something else
  Usage = 64,           ///< bad words on the command line (EX_USAGE)
  Software = 70,        ///< out of memory, or a fault of ours (EX_SOFTWARE)
  OutputError = 74,     ///< the output could not be written (EX_IOERR)
  Busy = 75,            ///< another process holds the record's lock (EX_TEMPFAIL)
};

constexpr ExitStatus ToExitStatus(dral::FuelGaugeStatus status) {
  return static_cast<ExitStatus>(status);
}

/// Ends the command: the text is for the user, the status for a script.
class ToolError : public std::exception {
 public:
  ToolError(ExitStatus status, std::string text) : status(status), text(std::move(text)) {}

  const char* what() const noexcept override { return text.c_str(); }

  const ExitStatus status;
  const std::string text;  ///< whole: a word in it may hold a NUL byte, where what() ends
};

/// The user asked for something that cannot be; the text names the wrong word and the way out.
class UsageError : public ToolError {
 public:
  explicit UsageError(std::string text) : ToolError(ExitStatus::Usage, std::move(text)) {}
};

}  // namespace fuelgauge
