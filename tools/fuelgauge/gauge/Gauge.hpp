// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <PropertyInfo.hpp>
#include <memory>
#include <string>

#include "gauge/Readings.hpp"
#include "gauge/Supply.hpp"

namespace fuelgauge {

/// Which gauge, as the command line names it.
struct GaugeOptions {
  std::string device = "bq27542-0";  ///< the supply's name or folder
  std::string lifetimeFile = {};     ///< an override file; empty: none
};

class Gauge {
 public:
  /// @throws UsageError when the lifetime file cannot be read, or naming its bad entry
  explicit Gauge(const GaugeOptions& which);

  dral::FuelGaugeIF* operator->() const { return gauge.get(); }
  const Supply& TheSupply() const { return supply; }

  /// Reads @p property as its natural type, or as @p type.
  Reading Read(const Property& property) const { return Read(property, property.type); }
  Reading Read(const Property& property, Type type) const;

  /// Reads the properties that have a file.
  Readings ReadAll() const;

  /// @return the path of the property's file; empty when it has none
  std::string File(const Property& property) const;

  /// @return why @p reading failed: also that there is no gauge at all
  std::string Reason(const Reading& reading) const;

  /// @return what to say when nothing can be told from @p readings
  std::string Missing(const Readings& readings) const;

 private:
  Supply supply;
  dral::PropertyMap files;
  std::unique_ptr<dral::FuelGaugeIF> gauge;
};

}  // namespace fuelgauge
