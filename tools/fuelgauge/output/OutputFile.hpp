// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace fuelgauge {

/// Puts a file with this @p text in place whole: who reads @p path sees the old text or the new one, after
/// a power cut as well. The file is always new, of mode 0644. Where @p path is a link, or anything else that
/// is not a regular file, it is left alone: another user may have put it there for root to follow.
/// @throws ToolError when the text is not in place, or may not stay there: the error says which, and why
void PutInPlace(const std::string& path, std::string_view text);

}  // namespace fuelgauge
