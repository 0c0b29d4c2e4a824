// SPDX-License-Identifier: MIT
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "Bq27542FuelGauge.hpp"

namespace dral {
namespace {

constexpr std::string_view DefaultDirectory = "/sys/class/power_supply/bq27542-0";

std::string Location(std::string_view attribute) {
  return std::string(DefaultDirectory).append("/").append(attribute);
}

PropertyInfo ReadOnly(std::string_view name, std::string_view attribute) {
  return {.propertyName = std::string(name), .location = Location(attribute)};
}

}  // namespace

const PropertyInfo Bq27542FuelGauge::NamePropertyInfo = ReadOnly("Manufacturer", "manufacturer");
const PropertyInfo Bq27542FuelGauge::TechnologyPropertyInfo = ReadOnly("Technology", "technology");
const PropertyInfo Bq27542FuelGauge::StatusPropertyInfo = ReadOnly("Status", "status");
const PropertyInfo Bq27542FuelGauge::PresentPropertyInfo = ReadOnly("Present", "present");
const PropertyInfo Bq27542FuelGauge::VoltageNowPropertyInfo = ReadOnly("VoltageNow", "voltage_now");
const PropertyInfo Bq27542FuelGauge::CurrentNowPropertyInfo = ReadOnly("CurrentNow", "current_now");
const PropertyInfo Bq27542FuelGauge::StateOfChargePropertyInfo =
    ReadOnly("StateOfCharge", "capacity");
const PropertyInfo Bq27542FuelGauge::ChargeLevelPropertyInfo =
    ReadOnly("ChargeLevel", "capacity_level");
const PropertyInfo Bq27542FuelGauge::TemperaturePropertyInfo = ReadOnly("Temperature", "temp");
const PropertyInfo Bq27542FuelGauge::NominalAvailableCapacityPropertyInfo =
    ReadOnly("NominalAvailableCapacity", "charge_now");
const PropertyInfo Bq27542FuelGauge::FullChargeCapacityPropertyInfo =
    ReadOnly("FullChargeCapacity", "charge_full");
const PropertyInfo Bq27542FuelGauge::CycleCountPropertyInfo = ReadOnly("CycleCount", "cycle_count");
const PropertyInfo Bq27542FuelGauge::PowerAveragePropertyInfo =
    ReadOnly("PowerAverage", "power_avg");
const PropertyInfo Bq27542FuelGauge::HealthPropertyInfo = ReadOnly("Health", "health");
const PropertyInfo Bq27542FuelGauge::TimeToEmptyPropertyInfo =
    ReadOnly("TimeToEmpty", "time_to_empty_now");
const PropertyInfo Bq27542FuelGauge::LifetimeDataPropertyInfo = {
    .propertyName = "LifetimeData",
    .settable = true,
    .resettable = true,
    .location = Location("lifetime_data"),
    .resetValue = LifetimeData{},
    .binary = true,
};

PropertyMap Bq27542FuelGauge::DefaultPropertyMap() {
  // Not from a list of entries: each would be copied twice.
  const std::pair<FuelGaugeProperty, const PropertyInfo&> entries[] = {
      {FuelGaugeProperty::Name, NamePropertyInfo},
      {FuelGaugeProperty::Technology, TechnologyPropertyInfo},
      {FuelGaugeProperty::Status, StatusPropertyInfo},
      {FuelGaugeProperty::Present, PresentPropertyInfo},
      {FuelGaugeProperty::VoltageNow, VoltageNowPropertyInfo},
      {FuelGaugeProperty::CurrentNow, CurrentNowPropertyInfo},
      {FuelGaugeProperty::StateOfCharge, StateOfChargePropertyInfo},
      {FuelGaugeProperty::ChargeLevel, ChargeLevelPropertyInfo},
      {FuelGaugeProperty::Temperature, TemperaturePropertyInfo},
      {FuelGaugeProperty::NominalAvailableCapacity, NominalAvailableCapacityPropertyInfo},
      {FuelGaugeProperty::FullChargeCapacity, FullChargeCapacityPropertyInfo},
      {FuelGaugeProperty::CycleCount, CycleCountPropertyInfo},
      {FuelGaugeProperty::PowerAverage, PowerAveragePropertyInfo},
      {FuelGaugeProperty::Health, HealthPropertyInfo},
      {FuelGaugeProperty::TimeToEmpty, TimeToEmptyPropertyInfo},
      {FuelGaugeProperty::LifetimeData, LifetimeDataPropertyInfo},
  };
  PropertyMap map;
  for (const auto& [property, info] : entries) {
    map.emplace(property, info);
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
