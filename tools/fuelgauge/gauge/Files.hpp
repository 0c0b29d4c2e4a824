// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace fuelgauge {

/// @return why the file at @p path is not to be opened, in words: a pipe would hold up who reads it, a
///         device may act on it, and no attribute has more than 65536 bytes. Empty when it may be, or
///         when there is none.
std::string Unfit(const std::string& path);

/// @return the bytes of the file at @p path, read once
/// @throws UsageError saying why it cannot be read, or is not to be
std::string ContentsOf(const std::string& path);

/// @return the same, up to the first newline
/// @throws UsageError naming the file as well
std::string FirstLine(const std::string& path);

/// @return the paths of what is in @p folder, in the order of the names
/// @throws UsageError saying why it cannot be read
std::vector<std::string> PathsIn(const std::string& folder);

/// @return whether there is something at @p path, and if not, errno says why
bool Exists(const std::string& path);

}  // namespace fuelgauge
