// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace fuelgauge {

/// The text is not in place, or may not stay there; what() says which, and why.
class OutputError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Puts a file with this @p text in place whole: who reads @p path sees the old text or the new one, after
/// a power cut as well. The file is always new, of mode 0644. Where @p path is a link, or anything else that
/// is not a regular file, it is left alone: another user may have put it there for root to follow.
/// @throws OutputError
void PutInPlace(const std::string& path, std::string_view text);

}  // namespace fuelgauge
