// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace fuelgauge {

/// @return why the file at @p path is not to be opened, in words: a pipe would hold up who reads it, a
///         device may act on it, and no attribute has more than 65536 bytes. Empty when it may be, or
///         when there is none.
std::string Unfit(const std::string& path);

/// @return the bytes of the file at @p path, read once
/// @throws UsageError saying why it cannot be read, or is not to be
std::string ContentsOf(const std::string& path);

}  // namespace fuelgauge
