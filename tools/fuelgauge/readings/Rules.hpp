// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// One thing that must hold of a gauge that makes sense.
struct Rule {
  std::string_view name;
  std::string_view
      severity;             ///< error: the values are wrong; warning: they may be; notice: know it
  std::string_view reason;  ///< what a finding means
  std::vector<dral::FuelGaugeProperty> properties;  ///< what to show beside it
  bool (*broken)(const Readings& readings);
};

/// @return whether a gauge in order may fail to give this: a file that its driver does not offer, or
///         the time to empty while it says that it is not discharging
bool UnreadIsNormal(const Reading& reading, const Readings& readings);

/// All of them. To add one is to add a line.
extern const std::vector<Rule> Rules;

}  // namespace fuelgauge
