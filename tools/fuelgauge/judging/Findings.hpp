// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "judging/Rules.hpp"

namespace fuelgauge {

/// A rule that is broken.
struct Finding {
  const Rule* rule = nullptr;
  Evidence evidence;
};

/// @return a finding for each rule and each of @p limits that @p readings break, but for those that
///         another one silences or excuses
std::vector<Finding> Findings(const Readings& readings, const std::vector<Rule>& limits = {});

}  // namespace fuelgauge
