// SPDX-License-Identifier: MIT
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "Bq27542FuelGauge.hpp"
#include "FuelGaugeNames.hpp"

namespace dral {
namespace {

constexpr std::string_view DefaultDirectory = "/sys/class/power_supply/bq27542-0";

constexpr bool EachRowIsInItsPlace() {
  for (std::size_t number = 0; number < FuelGaugePropertyRows.size(); ++number) {
    if (static_cast<std::size_t>(FuelGaugePropertyRows[number].property) != number) {
      return false;
    }
  }
  return true;
}
static_assert(EachRowIsInItsPlace());

PropertyInfo Entry(FuelGaugeProperty property) {
  const auto& [id, name, attribute] = FuelGaugePropertyRows.at(static_cast<std::size_t>(property));
  std::string location;
  location.reserve(DefaultDirectory.size() + 1 + attribute.size());
  location.append(DefaultDirectory).append("/").append(attribute);
  const bool isRecord = id == FuelGaugeProperty::LifetimeData;  // which alone can be written
  return {.propertyName = std::string(id == FuelGaugeProperty::Name ? "Manufacturer" : name),
          .settable = isRecord,
          .resettable = isRecord,
          .location = std::move(location),
          .resetValue = isRecord ? PropertyValue(LifetimeData{}) : PropertyValue(),
          .binary = isRecord};
}

}  // namespace

const PropertyInfo Bq27542FuelGauge::NamePropertyInfo = Entry(FuelGaugeProperty::Name);
const PropertyInfo Bq27542FuelGauge::TechnologyPropertyInfo = Entry(FuelGaugeProperty::Technology);
const PropertyInfo Bq27542FuelGauge::StatusPropertyInfo = Entry(FuelGaugeProperty::Status);
const PropertyInfo Bq27542FuelGauge::PresentPropertyInfo = Entry(FuelGaugeProperty::Present);
const PropertyInfo Bq27542FuelGauge::VoltageNowPropertyInfo = Entry(FuelGaugeProperty::VoltageNow);
const PropertyInfo Bq27542FuelGauge::CurrentNowPropertyInfo = Entry(FuelGaugeProperty::CurrentNow);
const PropertyInfo Bq27542FuelGauge::StateOfChargePropertyInfo =
    Entry(FuelGaugeProperty::StateOfCharge);
const PropertyInfo Bq27542FuelGauge::ChargeLevelPropertyInfo =
    Entry(FuelGaugeProperty::ChargeLevel);
const PropertyInfo Bq27542FuelGauge::TemperaturePropertyInfo =
    Entry(FuelGaugeProperty::Temperature);
const PropertyInfo Bq27542FuelGauge::NominalAvailableCapacityPropertyInfo =
    Entry(FuelGaugeProperty::NominalAvailableCapacity);
const PropertyInfo Bq27542FuelGauge::FullChargeCapacityPropertyInfo =
    Entry(FuelGaugeProperty::FullChargeCapacity);
const PropertyInfo Bq27542FuelGauge::CycleCountPropertyInfo = Entry(FuelGaugeProperty::CycleCount);
const PropertyInfo Bq27542FuelGauge::PowerAveragePropertyInfo =
    Entry(FuelGaugeProperty::PowerAverage);
const PropertyInfo Bq27542FuelGauge::HealthPropertyInfo = Entry(FuelGaugeProperty::Health);
const PropertyInfo Bq27542FuelGauge::TimeToEmptyPropertyInfo =
    Entry(FuelGaugeProperty::TimeToEmpty);
const PropertyInfo Bq27542FuelGauge::LifetimeDataPropertyInfo =
    Entry(FuelGaugeProperty::LifetimeData);

PropertyMap Bq27542FuelGauge::DefaultPropertyMap() {
  PropertyMap map;
  map.reserve(FuelGaugePropertyRows.size());
  for (const FuelGaugePropertyRow& row : FuelGaugePropertyRows) {
    if (!row.attribute.empty()) {
      map.emplace(row.property, Entry(row.property));
    }
  }
  return map;
}

std::unique_ptr<PropertyMap> Bq27542FuelGauge::PropertyMapAt(std::string_view directory) {
  auto map = std::make_unique<PropertyMap>(DefaultPropertyMap());
  for (auto& [property, info] : *map) {
    info.location.replace(0, DefaultDirectory.size(), directory);
  }
  return map;
}

}  // namespace dral
