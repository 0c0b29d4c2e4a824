// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <optional>
#include <string>
#include <vector>

#include "ExitStatus.hpp"

/// The tool's commands. Each writes its answer to standard output, and to standard error what went
/// wrong, and returns how it ended. They throw UsageError.

ExitStatus List(dral::FuelGaugeIF& gauge, bool json);

/// @param type the alternative of `dral::PropertyValue` to read as; none: the natural one
ExitStatus Get(dral::FuelGaugeIF& gauge, const std::string& name,
               const std::optional<dral::PropertyValue>& type, bool json);

/// @param values "FIELD=VALUE" for the lifetime record, one text for any other property
ExitStatus Set(dral::FuelGaugeIF& gauge, const std::string& name,
               const std::vector<std::string>& values);

ExitStatus Reset(dral::FuelGaugeIF& gauge, const std::string& name);
