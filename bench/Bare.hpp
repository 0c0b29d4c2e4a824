// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>

/// The system calls that an operation cannot do without, and nothing else: the floor that all else is
/// measured against. Each answers whether it went well.
namespace bare {

/// Reads a text to its end, since only a read of nothing tells that there is no more.
inline bool ReadText(const std::string& path) {
  std::array<char, 4096> block;
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  ssize_t total = 0;
  ssize_t count = 0;
  while ((count = ::read(file, block.data(), block.size())) > 0) {
    total += count;
  }
  return ::close(file) == 0 && count == 0 && total > 0;
}

/// Reads the 32 bytes of a record, whose length is known.
inline bool ReadRecord(const std::string& path) {
  std::array<char, 32> bytes;
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  const ssize_t count = ::read(file, bytes.data(), bytes.size());
  return ::close(file) == 0 && count == ssize_t{bytes.size()};
}

/// Writes a file anew, when there is one: a write must not make an attribute that the kernel lacks.
inline bool Write(const std::string& path, std::string_view contents) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    return false;
  }
  const int file = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
  const ssize_t count = ::write(file, contents.data(), contents.size());
  return ::close(file) == 0 && count == static_cast<ssize_t>(contents.size());
}

}  // namespace bare
