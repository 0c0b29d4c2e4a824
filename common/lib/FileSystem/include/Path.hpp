// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "LinuxApiIF.hpp"
#include "PathIF.hpp"

namespace dral {

/// A path of the system's: the stand-in for the platform's class, with what the library needs of it.
class Path : public PathIF {
 public:
  /// @param linuxApi answers the system calls; null: the system itself
  Path(std::string_view path, std::unique_ptr<LinuxApiIF> linuxApi);

  bool Exists() const override;

 private:
  std::string path;
  std::unique_ptr<LinuxApiIF> linuxApi;
};

}  // namespace dral
