// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "commands/ExitStatus.hpp"
#include "readings/Gauge.hpp"

namespace fuelgauge {

/// Says that @p property was not written, and why.
ExitStatus NotWritten(const Property& property, const std::string& reason,
                      dral::FuelGaugeStatus status = dral::FuelGaugeStatus::FileError);

/// Says why a write or a reset of @p property was refused: its @p status, and the errno after it.
ExitStatus Refused(const Gauge& gauge, const Property& property, dral::FuelGaugeStatus status,
                   int error);

/// Says why @p reading failed, and what follows from it.
ExitStatus Unreadable(const Gauge& gauge, const Reading& reading, std::string_view consequence);

/// Compares the record that the gauge holds with the one that was @p written, and says so, and what the
/// kernel said of the write: its @p error.
ExitStatus ReadBack(const Gauge& gauge, const Property& property, const dral::LifetimeData& written,
                    int error);

}  // namespace fuelgauge
