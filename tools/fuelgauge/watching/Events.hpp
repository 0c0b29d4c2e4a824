// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "gauge/Descriptor.hpp"

namespace fuelgauge {

/// @return whether @p message, one of the kernel's about a device, says that the supply of this name has
///         changed, has gone, or may have come. The kernel does not announce that a supply is added; it
///         announces what is added below it, and that its chip is bound.
bool Concerns(std::string_view message, std::string_view supply);

/// What the kernel announces of one supply, from now on.
class Events {
 public:
  /// @param supply its name; empty: nothing is asked for, and nothing comes
  explicit Events(std::string supply);

  /// @return why nothing can come; empty when it can
  const std::string& Lack() const { return lack; }

  /// @return what becomes readable when the kernel announces something; negative when nothing can come
  int Number() const { return socket; }

  /// Takes all that has come.
  /// @return whether the supply is concerned: also when the kernel has dropped messages
  bool Take() const;

 private:
  std::string supply;
  Descriptor socket;
  std::string lack;
};

}  // namespace fuelgauge
