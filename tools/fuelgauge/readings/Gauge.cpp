// SPDX-License-Identifier: MIT
#include "readings/Gauge.hpp"

#include <unistd.h>

#include <Bq27542FuelGauge.hpp>
#include <cerrno>
#include <string_view>
#include <tuple>
#include <utility>

#include "readings/LifetimeFile.hpp"
#include "readings/RegularFile.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {

using dral::Bq27542FuelGauge;
using dral::FuelGaugeStatus;

Gauge::Gauge(const GaugeOptions& which)
    : folder(SupplyFolder(which.devices.empty() ? DefaultDevice : which.devices.front())),
      files(*Bq27542FuelGauge::PropertyMapAt(folder)) {
  if (which.devices.size() > 1) {
    throw UsageError("--device: 'metrics' alone takes more than one");
  }
  if (!which.lifetimeFile.empty()) {
    files[dral::FuelGaugeProperty::LifetimeData].resetValue = ReadLifetimeFile(which.lifetimeFile);
  }
  gauge = std::make_unique<Bq27542FuelGauge>("", std::make_unique<dral::PropertyMap>(files));
}

Reading Gauge::Read(const Property& property, Type type) const {
  const std::string path = File(property);
  Cause cause;
  cause.unfit = Unfit(path);
  if (!cause.unfit.empty()) {  // the library would open it, and read it to its end
    return {&property, FuelGaugeStatus::FileError, Hint(type), std::move(cause)};
  }
  auto [status, value] = gauge->Get(property.id, Hint(type));
  if (status == FuelGaugeStatus::Success || path.empty()) {
    return {&property, status, std::move(value)};
  }
  cause = Cause::Of(path);
  // It may have come back since. On a bus that fails now and then, the two have to agree.
  constexpr int Tries = 3;
  for (int again = 0; again < Tries && cause.error == 0 && status != FuelGaugeStatus::Success;
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
  const bool otherDriver = HasOtherDriver(folder);
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (files.contains(property.id)) {  // the reset value has none
      readings.push_back(Read(property));
      readings.back().otherDriver = otherDriver;
    }
  }
  return Readings(SupplyName(), std::move(readings), otherDriver && CountsEnergy(folder));
}

std::string Gauge::Absence() const {
  if (::access(folder.c_str(), F_OK) == 0 || errno != ENOENT) {
    return "";
  }
  return "there is no '" + folder + "'" +
         (folder.starts_with(SupplyClass) ? "; " + SuppliesForPeople() : "");
}

std::string Gauge::File(const Property& property) const {
  const auto file = files.find(property.id);
  return file != files.end() ? file->second.location : "";
}

std::string Gauge::Reason(const Reading& reading) const {
  const std::string absence = Absence();
  return absence.empty() ? reading.Reason() : absence;
}

std::string Gauge::Missing(const Readings& readings) const {
  const std::string absence = Absence();
  return absence.empty()
             ? "no value could be read in '" + folder + "': " + readings.Telling().Reason()
             : absence;
}

}  // namespace fuelgauge
