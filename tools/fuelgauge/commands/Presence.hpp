// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "readings/Gauge.hpp"

namespace fuelgauge {

/// Tells once that the gauge is gone, and once that it is back.
class Presence {
 public:
  /// @return whether something was told
  bool Tell(const Gauge& gauge, const Readings& readings, const std::string& time);

  /// @return whether the gauge ever was there
  bool Ever() const { return !lastSeen.empty(); }

 private:
  bool there = true;
  std::string lastSeen;
};

}  // namespace fuelgauge
