// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>

namespace dral {

/// Puts `errno` back as it was, so that what runs meanwhile cannot hide why an operation failed.
class KeepErrno {
 public:
  KeepErrno() = default;
  ~KeepErrno() { errno = before; }
  KeepErrno(const KeepErrno&) = delete;
  KeepErrno& operator=(const KeepErrno&) = delete;

 private:
  int before = errno;
};

}  // namespace dral
