// SPDX-License-Identifier: MIT
#include "readings/Gauge.hpp"

#include <Bq27542FuelGauge.hpp>
#include <utility>

#include "readings/LifetimeFile.hpp"

namespace fuelgauge {

using dral::Bq27542FuelGauge;
using dral::FuelGaugeStatus;

Gauge::Gauge(const GaugeOptions& which)
    : folder(which.device.empty() ? DefaultFolder : which.device),
      files(Bq27542FuelGauge::PropertyMapAt(folder)) {
  const std::string& lifetimeFile = which.lifetimeFile;
  if (!lifetimeFile.empty()) {
    CheckLifetimeFile(lifetimeFile);
  }
  if (which.device.empty()) {
    gauge = dral::InterfaceFactory::Create<dral::FuelGaugeIF, std::string_view>("Bq27542FuelGauge",
                                                                                lifetimeFile);
  } else {
    gauge =
        std::make_unique<Bq27542FuelGauge>(lifetimeFile, Bq27542FuelGauge::PropertyMapAt(folder));
  }
}

Reading Gauge::Read(const Property& property, Type type) const {
  const std::string path = File(property);
  Cause cause = Cause::OfSize(path);
  if (!cause.tooLarge.empty()) {  // the library would read it to its end
    return {&property, FuelGaugeStatus::Failure, Hint(type), std::move(cause)};
  }
  auto [status, value] = gauge->Get(property.id, Hint(type));
  if (status == FuelGaugeStatus::Success || path.empty()) {
    return {&property, status, std::move(value)};
  }
  cause = Cause::Of(path);
  // It may have come back since. On a bus that fails now and then, the two have to agree.
  constexpr int Tries = 3;
  for (int again = 0; again < Tries && cause.error == 0 && cause.tooLarge.empty() &&
                      status != FuelGaugeStatus::Success;
       ++again) {
    std::tie(status, value) = gauge->Get(property.id, Hint(type));
    if (status != FuelGaugeStatus::Success) {
      cause = Cause::Of(path);
    }
  }
  if (status != FuelGaugeStatus::Success) {
    status = cause.Status(type == Type::Lifetime);
  }
  Reading reading{&property, status, std::move(value), std::move(cause)};
  if (reading.CameBack()) {
    reading.status = FuelGaugeStatus::NoData;
  }
  return reading;
}

Readings Gauge::ReadAll() const {
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (files->contains(property.id)) {  // the reset value has none
      readings.push_back(Read(property));
    }
  }
  return Readings(std::move(readings));
}

std::string Gauge::File(const Property& property) const {
  const auto file = files->find(property.id);
  return file != files->end() ? file->second.location : "";
}

std::string Gauge::Missing(const Readings& readings) const {
  return "no property could be read in '" + folder + "': " + readings.Telling().Reason();
}

}  // namespace fuelgauge
