// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <memory>
#include <string>

#include "Property.hpp"

/// Opens the gauge: the device's own, through the factory as an application would, or the one in
/// the folder @p device. An empty @p lifetimeFile means no override.
/// @throws UsageError naming the bad entry of @p lifetimeFile
std::unique_ptr<dral::FuelGaugeIF> OpenGauge(const std::string& device,
                                             const std::string& lifetimeFile);

/// @return why reading @p property ended with @p status, in words for people. For a number, whose
///         failure has but one status, it reads the property once more, as text.
std::string ExplainRead(dral::FuelGaugeIF& gauge, const Property& property,
                        dral::FuelGaugeStatus status);
