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

/// Says why a write or a reset of @p property was refused.
ExitStatus Refused(const Gauge& gauge, const Property& property, dral::FuelGaugeStatus status);

/// Says why @p reading failed, and what follows from it.
ExitStatus Unreadable(const Gauge& gauge, const Reading& reading, std::string_view consequence);

/// Compares the record that the gauge holds with the one that was @p written, and says so. The library
/// cannot tell whether the kernel took a write, since a file's bytes leave it on closing; reading back
/// can.
ExitStatus ReadBack(const Gauge& gauge, const Property& property,
                    const dral::LifetimeData& written);

}  // namespace fuelgauge
