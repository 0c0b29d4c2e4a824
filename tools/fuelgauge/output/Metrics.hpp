// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// @return the readings of these supplies, by their names, in the Prometheus text format, in base
///         units; what could not be read is left out, and shows in the families
///         "fuelgauge_read_success" and "fuelgauge_read_error"
std::string MetricsOf(const std::map<std::string, Readings>& supplies);

}  // namespace fuelgauge
