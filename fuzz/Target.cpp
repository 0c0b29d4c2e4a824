// SPDX-License-Identifier: MIT
#include "Target.hpp"

#include <LogOutput.hpp>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  dral::LogOutput::SetLevel(dral::LogLevel{0});
  Target(std::string(data, data + size));
  return 0;
}
