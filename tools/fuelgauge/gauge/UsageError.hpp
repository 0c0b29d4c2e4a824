// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace fuelgauge {

/// The user asked for something that cannot be; the text names the wrong word and the way out.
class UsageError : public std::exception {
 public:
  explicit UsageError(std::string text) : text(std::move(text)) {}

  /// @return the whole text: a word in it may hold a NUL byte, where what() ends
  const std::string& Text() const { return text; }
  const char* what() const noexcept override { return text.c_str(); }

 private:
  std::string text;
};

}  // namespace fuelgauge
