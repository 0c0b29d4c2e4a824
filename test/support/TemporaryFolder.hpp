// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// A folder of its own in memory, gone with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() : path(::mkdtemp(std::string("/dev/shm/fuelgauge-XXXXXX").data())) {}
  ~TemporaryFolder() { std::filesystem::remove_all(path); }

  std::string At(const std::string& name) const { return path + "/" + name; }

  /// @return the path of the file that now holds @p contents
  std::string Write(const std::string& name, const std::string& contents) const {
    std::ofstream(At(name), std::ios::binary) << contents;
    return At(name);
  }

  std::string Read(const std::string& name) const {
    std::ifstream file(At(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  const std::string path;
};
