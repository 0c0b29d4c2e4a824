// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <utility>

#include "gauge/ExitStatus.hpp"

namespace fuelgauge {

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
