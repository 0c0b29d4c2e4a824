// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <cstdint>
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

/// Prints what Prometheus reads, or puts it in place as the file @p output, whole.
ExitStatus Metrics(dral::FuelGaugeIF& gauge, const std::optional<std::string>& output);

/// Holds what the gauge says against the rules (see `Rule`).
ExitStatus Check(dral::FuelGaugeIF& gauge, bool json);

struct WatchOptions {
  enum class Format { Plain, Csv, Json };

  double intervalSeconds = 1;
  std::uint64_t count = 0;  ///< samples to take; 0: until stopped
  Format format = Format::Plain;
};

/// Prints a line for each sample, flushed, or redraws one table on a terminal, until @p options say
/// it is enough, Ctrl-C or the end of who reads the output.
ExitStatus Watch(dral::FuelGaugeIF& gauge, const WatchOptions& options);
