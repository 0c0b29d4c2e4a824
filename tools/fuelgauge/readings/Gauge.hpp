// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <memory>
#include <string>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// Which gauge, as the command line names it.
struct GaugeOptions {
  std::string device;        ///< its folder; empty: the device's own gauge
  std::string lifetimeFile;  ///< an override file; empty: none
};

/// That gauge.
class Gauge {
 public:
  /// Opens the device's own gauge through the factory, as an application would.
  /// @throws UsageError when the lifetime file cannot be read, or naming its bad entry
  explicit Gauge(const GaugeOptions& which);

  dral::FuelGaugeIF* operator->() const { return gauge.get(); }

  Reading Read(const Property& property) const { return Read(property, property.type); }
  Reading Read(const Property& property, Type type) const;

  Readings ReadAll() const;

  /// The same, but a number that failed, for which there is the status Failure alone, is asked once
  /// more as text: the reading then has that status, and tells a missing file from one without data.
  Readings ReadAllWithCauses() const;

  /// @return why reading @p property as @p type ended with @p status, in words for people; to know,
  ///         it may read the property again
  std::string ExplainRead(const Property& property, Type type, dral::FuelGaugeStatus status) const;

 private:
  std::unique_ptr<dral::FuelGaugeIF> gauge;
};

}  // namespace fuelgauge
