// SPDX-License-Identifier: MIT
#include "readings/Gauge.hpp"

#include <Bq27542FuelGauge.hpp>
#include <tuple>
#include <utility>

#include "output/Text.hpp"
#include "readings/LifetimeFile.hpp"

namespace fuelgauge {

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;

Gauge::Gauge(const GaugeOptions& which) {
  const auto& [device, lifetimeFile] = which;
  using dral::Bq27542FuelGauge;
  if (!lifetimeFile.empty()) {
    CheckLifetimeFile(lifetimeFile);
  }
  if (device.empty()) {
    gauge = dral::InterfaceFactory::Create<dral::FuelGaugeIF, std::string_view>("Bq27542FuelGauge",
                                                                                lifetimeFile);
  } else {
    gauge =
        std::make_unique<Bq27542FuelGauge>(lifetimeFile, Bq27542FuelGauge::PropertyMapAt(device));
  }
}

Reading Gauge::Read(const Property& property, Type type) const {
  auto [status, value] = gauge->Get(property.id, Hint(type));
  return {&property, status, std::move(value)};
}

Readings Gauge::ReadAll() const {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (property.id != FuelGaugeProperty::LifetimeDataResetValue) {  // it has no file
      readings.push_back(Read(property));
    }
  }
  return Readings(std::move(readings));
}

Readings Gauge::ReadAllWithCauses() const {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (property.id != FuelGaugeProperty::LifetimeDataResetValue) {
      Reading reading = Read(property);
      if (reading.status == FuelGaugeStatus::Failure) {
        const auto status = gauge->Get<std::string>(property.id).first;
        // A text that is there and is no number, or has come back since, stays a failure.
        reading.status = status == FuelGaugeStatus::Success ? reading.status : status;
      }
      readings.push_back(std::move(reading));
    }
  }
  return Readings(std::move(readings));
}

std::string Gauge::ExplainRead(const Property& property, Type type, FuelGaugeStatus status) const {
  const bool record = type == Type::Lifetime;
  // A number's failure has but one status, a record's does not tell a short file: text tells more.
  if (status == FuelGaugeStatus::Failure || (record && status == FuelGaugeStatus::NoData)) {
    std::string text;
    std::tie(status, text) = gauge->Get<std::string>(property.id);
    if (status == FuelGaugeStatus::Success) {
      if (Read(property, type).Succeeded()) {
        return "it could not be read, but now it can: try again";
      }
      return record ? "it holds no whole record of 32 bytes"
                    : std::string("'")
                          .append(Printable(text))
                          .append("' is not a value of the type asked for");
    }
  }
  switch (status) {
    case FuelGaugeStatus::FileError:
      return property.id == FuelGaugeProperty::LifetimeData
                 ? "no such file (only a vendor's driver offers it), or no right to read it"
                 : "no such file, or no right to read it";
    case FuelGaugeStatus::NoData:
      return property.id == FuelGaugeProperty::TimeToEmpty &&
                     gauge->Get<std::string>(FuelGaugeProperty::Status).second != "Discharging"
                 ? "none while the battery is not discharging"
                 : "the gauge gives no value now";
    default:
      return "the gauge has no such property";
  }
}

}  // namespace fuelgauge
