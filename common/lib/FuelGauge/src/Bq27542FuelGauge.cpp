// SPDX-License-Identifier: MIT
#include "Bq27542FuelGauge.hpp"

#include <cerrno>
#include <cstdint>
#include <exception>
#include <variant>

#include "LifetimeDataParser.hpp"
#include "Log.hpp"
#include "Readable.hpp"
#include "Writable.hpp"

namespace dral {
namespace {

// Not the variant's own copy: GCC 12's crashes when there is no memory for a long string in it.
PropertyValue CopyOf(const PropertyValue& value) {
  const auto copy = [](const auto& held) { return PropertyValue(held); };
  return value.valueless_by_exception() ? value : std::visit(copy, value);
}

PropertyMap CopyOf(const PropertyMap& map) {
  PropertyMap copy;
  for (const auto& [property, info] : map) {
    copy.emplace(property, PropertyInfo{info.propertyName, info.settable, info.resettable,
                                        info.location, CopyOf(info.resetValue), info.binary});
  }
  return copy;
}

}  // namespace

Bq27542FuelGauge::Bq27542FuelGauge(std::string_view lifetimeResetPath,
                                   std::unique_ptr<PropertyMap> propertyMap) {
  KESP_LOG("Bq27542FuelGauge", LogProgress)
      << (propertyMap ? "Bq27542FuelGauge constructor using passed in property map "
                      : "Bq27542FuelGauge constructor using default property map ");
  this->propertyMap = propertyMap ? CopyOf(*propertyMap) : DefaultPropertyMap();
  if (!lifetimeResetPath.empty()) {
    KESP_LOG("Bq27542FuelGauge", LogProgress)
        << "Bq27542FuelGauge constructor overwriting lifetime reset data " << lifetimeResetPath;
    UpdateResetPropertyValues(lifetimeResetPath);
  }
}

Bq27542FuelGauge::~Bq27542FuelGauge() = default;

void Bq27542FuelGauge::UpdateResetPropertyValues(std::string_view lifetimeResetPath) {
  if (lifetimeResetPath.empty()) {
    return;
  }
  // A map without the entry gets an empty one here, whose text is no record: get throws.
  PropertyValue& resetValue = propertyMap[FuelGaugeProperty::LifetimeData].resetValue;
  resetValue =
      LifetimeDataParser(lifetimeResetPath, std::get<LifetimeData>(resetValue)).GetLifetimeData();
}

// In the three operations the lock is released before the failure is logged: a slow log must not
// hold up the other threads. Each begins with no error; `File` then sets errno.

FuelGaugeStatus Bq27542FuelGauge::DoSet(FuelGaugeProperty property, PropertyValue value) {
  errno = 0;
  try {
    const std::scoped_lock lock(mutex);
    return Writable(property, propertyMap).Set(std::move(value));
  } catch (const std::exception& exception) {
    KESP_LOG("Bq27542FuelGauge", LogFailure)
        << "Failed to set property: " << static_cast<std::uint32_t>(property)
        << "ex: " << exception.what();
    return FuelGaugeStatus::Failure;
  }
}

std::pair<FuelGaugeStatus, PropertyValue> Bq27542FuelGauge::DoGet(FuelGaugeProperty property,
                                                                  PropertyValue value) {
  errno = 0;
  if (property == FuelGaugeProperty::LifetimeDataResetValue) {
    // Without the lock, since the map does not change, and so that no slow bus holds it up.
    const auto entry = propertyMap.find(FuelGaugeProperty::LifetimeData);
    return {FuelGaugeStatus::Success,
            entry != propertyMap.end() ? CopyOf(entry->second.resetValue) : LifetimeData{}};
  }
  try {
    const std::scoped_lock lock(mutex);
    return Readable(property, propertyMap).Get(CopyOf(value));
  } catch (const std::exception& exception) {
    KESP_LOG("Bq27542FuelGauge", LogFailure)
        << "Failed to get property: " << static_cast<std::uint32_t>(property)
        << "ex: " << exception.what();
    return {FuelGaugeStatus::Failure, std::move(value)};
  }
}

FuelGaugeStatus Bq27542FuelGauge::DoReset(FuelGaugeProperty property) {
  errno = 0;
  try {
    const std::scoped_lock lock(mutex);
    return Writable(property, propertyMap).Reset();
  } catch (const std::exception& exception) {
    KESP_LOG("Bq27542FuelGauge", LogFailure)
        << "Failed to reset property: " << static_cast<std::uint32_t>(property)
        << "ex: " << exception.what();
    return FuelGaugeStatus::Failure;
  }
}

void Bq27542FuelGauge::DumpPropertyMap() const {
  for (const auto& [property, info] : propertyMap) {
    KESP_LOG("Bq27542FuelGauge", LogFailure)
        << "Type: " << static_cast<std::uint32_t>(property) << " : " << info << "\n";
  }
}

}  // namespace dral
