// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <string_view>
#include <utility>

#include "FuelGaugeIF.hpp"
#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"
#include "KespExport.hpp"
#include "PropertyInfo.hpp"
#include "PropertyValue.hpp"

namespace dral {

/// A Texas Instruments BQ27542 as the kernel's power_supply class serves it. Most callers get one
/// from the factory (see `FuelGaugeIF`); build one directly to read a gauge with another name:
///
///     const auto directory = "/sys/class/power_supply/bq27542-1";
///     Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(directory));
///
/// Thread-safe except for `UpdateResetPropertyValues`. Every read opens its file again.
class KESP_EXPORT Bq27542FuelGauge : public FuelGaugeIF {
 public:
  // The properties of the device `bq27542-0`, each with the name of its file. Only the last can be
  // written.
  static const PropertyInfo NamePropertyInfo;                      ///< manufacturer
  static const PropertyInfo TechnologyPropertyInfo;                ///< technology
  static const PropertyInfo StatusPropertyInfo;                    ///< status
  static const PropertyInfo PresentPropertyInfo;                   ///< present
  static const PropertyInfo VoltageNowPropertyInfo;                ///< voltage_now
  static const PropertyInfo CurrentNowPropertyInfo;                ///< current_now
  static const PropertyInfo StateOfChargePropertyInfo;             ///< capacity
  static const PropertyInfo ChargeLevelPropertyInfo;               ///< capacity_level
  static const PropertyInfo TemperaturePropertyInfo;               ///< temp
  static const PropertyInfo NominalAvailableCapacityPropertyInfo;  ///< charge_now
  static const PropertyInfo FullChargeCapacityPropertyInfo;        ///< charge_full
  static const PropertyInfo CycleCountPropertyInfo;                ///< cycle_count
  static const PropertyInfo PowerAveragePropertyInfo;              ///< power_avg
  static const PropertyInfo HealthPropertyInfo;                    ///< health
  static const PropertyInfo TimeToEmptyPropertyInfo;               ///< time_to_empty_now
  static const PropertyInfo
      LifetimeDataPropertyInfo;  ///< lifetime_data; settable, reset to the default record

  /// @return the same properties with their files in @p directory instead, for the constructor
  /// @throws std::bad_alloc
  static std::unique_ptr<PropertyMap> PropertyMapAt(std::string_view directory);

  /// @param lifetimeResetPath a lifetime override file (see `LifetimeDataParser`); empty for none
  /// @param propertyMap copied, and released when construction ends; null means the properties of
  ///        `bq27542-0`
  /// @throws std::invalid_argument, std::out_of_range when a field's value in the override file is
  ///         not a number or is too large
  /// @throws std::bad_variant_access when @p lifetimeResetPath is given but @p propertyMap has no
  ///         lifetime entry, or one that holds no record
  /// @throws std::bad_alloc
  explicit Bq27542FuelGauge(std::string_view lifetimeResetPath,
                            std::unique_ptr<PropertyMap> propertyMap = nullptr);
  ~Bq27542FuelGauge() override;

  /// Reads the lifetime reset value anew from an override file; an empty path changes nothing.
  /// Not thread-safe: no other call on this object may run meanwhile.
  /// @throws as the constructor; the reset value is then unchanged
  void UpdateResetPropertyValues(std::string_view lifetimeResetPath);

  /// Writes every property's descriptor to the log, at level 3.
  /// @throws std::bad_variant_access when a descriptor cannot be written (see `PropertyInfo`)
  void DumpPropertyMap() const;

 protected:
  FuelGaugeStatus DoSet(FuelGaugeProperty property, PropertyValue value) override;
  std::pair<FuelGaugeStatus, PropertyValue> DoGet(FuelGaugeProperty property,
                                                  PropertyValue value) override;
  FuelGaugeStatus DoReset(FuelGaugeProperty property) override;

 private:
  static PropertyMap DefaultPropertyMap();

  PropertyMap propertyMap;
  std::mutex mutex;
};

}  // namespace dral
