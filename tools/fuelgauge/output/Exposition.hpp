// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "judging/Findings.hpp"

namespace fuelgauge {

/// What a gauge gave, and what is wrong with it.
struct JudgedReadings {
  Readings readings;
  std::vector<Finding> findings;
};

/// By the names of the supplies.
using Judged = std::map<std::string, JudgedReadings>;

/// @return all of it in the Prometheus text format, in base units; what could not be read is left out, and
///         shows in the families "fuelgauge_read_success" and "fuelgauge_read_error"
std::string Exposition(const Judged& supplies);

}  // namespace fuelgauge
