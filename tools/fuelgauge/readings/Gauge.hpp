// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeIF.hpp>
#include <PropertyInfo.hpp>
#include <memory>
#include <string>
#include <vector>

#include "readings/Readings.hpp"
#include "readings/Supplies.hpp"

namespace fuelgauge {

/// The supply that is the device's own gauge.
constexpr auto DefaultDevice = "bq27542-0";

/// Which gauge, as the command line names it.
struct GaugeOptions {
  std::vector<std::string> devices;  ///< the supply's name or folder; none: the device's own gauge
  std::string lifetimeFile;          ///< an override file; empty: none
};

/// That gauge.
class Gauge {
 public:
  /// @throws UsageError when @p which names several, when the lifetime file cannot be read, or
  ///         naming its bad entry
  explicit Gauge(const GaugeOptions& which);

  dral::FuelGaugeIF* operator->() const { return gauge.get(); }

  /// Reads @p property as its natural type, or as @p type.
  Reading Read(const Property& property) const { return Read(property, property.type); }
  Reading Read(const Property& property, Type type) const;

  /// Reads the properties that have a file.
  Readings ReadAll() const;

  /// @return the path of the property's file; empty when it has none
  std::string File(const Property& property) const;

  /// @return the name under which the kernel has it
  std::string SupplyName() const { return fuelgauge::SupplyName(folder); }

  /// @return such as "Battery" or "Mains"; empty for a folder that does not say
  std::string SupplyType() const { return fuelgauge::SupplyType(folder); }

  /// @return when there is no such supply or folder: so, and which supplies there are; else nothing
  std::string Absence() const;

  /// @return why @p reading failed: also that there is no gauge at all
  std::string Reason(const Reading& reading) const;

  /// @return what to say when not one of @p readings succeeded
  std::string Missing(const Readings& readings) const;

 private:
  std::string folder;
  dral::PropertyMap files;
  std::unique_ptr<dral::FuelGaugeIF> gauge;
};

}  // namespace fuelgauge
