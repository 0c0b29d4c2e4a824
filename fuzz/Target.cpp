// SPDX-License-Identifier: MIT
#include "Target.hpp"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Target(std::string(data, data + size));
  return 0;
}
