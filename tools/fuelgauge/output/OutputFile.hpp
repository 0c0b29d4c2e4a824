// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace fuelgauge {

/// The text is not in place, or may not stay there; what() says which, and why.
class OutputError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// A file that is put in place whole: who reads it sees the old text or the new one, after a power cut
/// as well.
class OutputFile {
 public:
  /// @param path links in it are followed: the file meant is replaced, never a link
  explicit OutputFile(std::string path) : path(std::move(path)) {}

  /// Replaces the file's text, or makes the file; an old one keeps its mode and, where we may give
  /// files away, its owner. Anything but a regular file is refused.
  /// @throws OutputError
  void Write(std::string_view text) const;

 private:
  std::string path;
};

}  // namespace fuelgauge
