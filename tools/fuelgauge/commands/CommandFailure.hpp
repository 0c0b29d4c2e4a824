// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

#include "commands/ExitStatus.hpp"

namespace fuelgauge {

/// A command that cannot go on: what() is to be said, and how it ends.
class CommandFailure : public std::runtime_error {
 public:
  CommandFailure(ExitStatus status, const std::string& text)
      : std::runtime_error(text), status(status) {}

  const ExitStatus status;
};

}  // namespace fuelgauge
