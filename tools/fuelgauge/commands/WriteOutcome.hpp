// SPDX-License-Identifier: MIT
#pragma once

#include "gauge/ExitStatus.hpp"
#include "gauge/Gauge.hpp"

namespace fuelgauge {

/// Says what became of a write: why it was refused, by its @p status and the @p error after it; or whether
/// the record that the gauge holds is the one that was @p written.
ExitStatus WriteOutcome(const Gauge& gauge, const Property& property,
                        const dral::LifetimeData& written, dral::FuelGaugeStatus status, int error);

}  // namespace fuelgauge
