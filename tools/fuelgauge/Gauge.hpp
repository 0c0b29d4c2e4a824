// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <memory>
#include <string>

#include "Property.hpp"

/// Opens the gauge: the device's own, through the factory as an application would, or the one in
/// the folder @p device. An empty @p lifetimeFile means no override.
/// @throws UsageError when @p lifetimeFile cannot be read, or naming its bad entry
std::unique_ptr<dral::FuelGaugeIF> OpenGauge(const std::string& device,
                                             const std::string& lifetimeFile);

/// @return why reading @p property as @p hint ended with @p status, in words for people; to know,
///         it may read the property again
std::string ExplainRead(dral::FuelGaugeIF& gauge, const Property& property,
                        const dral::PropertyValue& hint, dral::FuelGaugeStatus status);
