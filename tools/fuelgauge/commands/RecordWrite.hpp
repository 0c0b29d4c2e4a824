// SPDX-License-Identifier: MIT
#pragma once

#include "gauge/Descriptor.hpp"
#include "gauge/ExitStatus.hpp"
#include "gauge/Gauge.hpp"

namespace fuelgauge {

/// Takes an advisory lock, flock(2), on the property's file, as long as the answer lives. Of two processes
/// that read, change and write the record under such a lock, neither loses what the other wrote. Waits a few
/// seconds for another process. A file that cannot be opened or locked is left unlocked: the read or the write
/// that follows says what is wrong with it.
/// @throws ToolError when another process keeps the lock, or the file is none that may be opened
Descriptor LockRecord(const Gauge& gauge, const Property& property);

/// Says what became of a write: why it was refused, by its @p status and the @p error after it; or whether
/// the record that the gauge holds is the one that was @p written.
ExitStatus WriteOutcome(const Gauge& gauge, const Property& property,
                        const dral::LifetimeData& written, dral::FuelGaugeStatus status, int error);

}  // namespace fuelgauge
