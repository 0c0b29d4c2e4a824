// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dral {

/// The system calls that `Path` makes, so that a test can answer them.
class LinuxApiIF {
 public:
  virtual ~LinuxApiIF() = default;

  /// stat(2), for its result alone.
  /// @return 0, or -1 with errno set
  virtual int Stat(const std::string& path) const = 0;
};

}  // namespace dral
