// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// @return the readings in the Prometheus text format, in base units; what could not be read is left
///         out, and shows in the families "fuelgauge_read_success" and "fuelgauge_read_status"
std::string MetricsOf(const Readings& readings);

}  // namespace fuelgauge
