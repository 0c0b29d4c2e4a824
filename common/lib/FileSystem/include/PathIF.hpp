// SPDX-License-Identifier: MIT
#pragma once

namespace dral {

/// A place in the file system.
class PathIF {
 public:
  virtual ~PathIF() = default;

  /// @return whether something exists at the path, links followed as stat(2) does. False as well
  ///         when that cannot be found out, and for an empty path.
  virtual bool Exists() const = 0;
};

}  // namespace dral
