// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <iterator>

/// @return how many files this process has open
inline std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}
