// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The system call that fails: its name, how many of that name come before, the error, and how many
/// bytes each call may transfer. "found" is a file that goes once its stat has found it.
struct Fault {
  std::string_view call;
  int after = 0;
  int error = 0;
  std::size_t most = SIZE_MAX;
};
extern Fault fault;
