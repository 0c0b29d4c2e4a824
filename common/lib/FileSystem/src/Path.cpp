// SPDX-License-Identifier: MIT
#include "Path.hpp"

#include <sys/stat.h>

#include <utility>

namespace dral {

Path::Path(std::string_view path, std::unique_ptr<LinuxApiIF> linuxApi)
    : path(path), linuxApi(std::move(linuxApi)) {}

bool Path::Exists() const {
  if (path.empty()) {
    return false;
  }
  if (linuxApi) {
    return linuxApi->Stat(path) == 0;
  }
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0;
}

}  // namespace dral
