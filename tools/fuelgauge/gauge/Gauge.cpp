// SPDX-License-Identifier: MIT
#include "gauge/Gauge.hpp"

#include <Bq27542FuelGauge.hpp>
#include <cerrno>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "gauge/Files.hpp"
#include "gauge/LifetimeInput.hpp"

namespace fuelgauge {

using dral::Bq27542FuelGauge;
using dral::FuelGaugeStatus;

namespace {

// Whether the library would take it for one; what was not may have changed since.
bool IsNumber(const std::string& text, Type type) {
  try {
    return type == Type::Uint ? std::stoull(text) <= std::numeric_limits<std::uint32_t>::max()
                              : (std::stoi(text), true);
  } catch (const std::logic_error&) {
    return false;
  }
}

}  // namespace

Gauge::Gauge(const GaugeOptions& which)
    : supply(which.device), files(*Bq27542FuelGauge::PropertyMapAt(supply.Folder())) {
  if (!which.lifetimeFile.empty()) {
    files[dral::FuelGaugeProperty::LifetimeData].resetValue = ReadLifetimeFile(which.lifetimeFile);
  }
  gauge = std::make_unique<Bq27542FuelGauge>("", std::make_unique<dral::PropertyMap>(files));
}

Reading Gauge::Read(const Property& property, Type type) const {
  Reading reading{&property, FuelGaugeStatus::FileError, Hint(type)};
  reading.refusal = Unfit(File(property));
  if (!reading.refusal.empty()) {  // the library would open it, and read it to its end
    return reading;
  }
  std::tie(reading.status, reading.value) = gauge->Get(property.id, std::move(reading.value));
  reading.error = errno;
  if (reading.status != FuelGaugeStatus::Failure) {
    return reading;
  }
  if (reading.error != 0) {
    reading.status = StatusOf(reading.error);
    return reading;
  }
  auto [status, text] = gauge->Get<std::string>(property.id);
  if (status == FuelGaugeStatus::NoData && errno == 0) {
    reading.status = status;
  } else if (status == FuelGaugeStatus::Success && !IsNumber(text, type)) {
    reading.text = std::move(text);
  }
  return reading;
}

Readings Gauge::ReadAll() const {
  const bool otherDriver = supply.HasOtherDriver();
  std::vector<Reading> readings;
  for (const Property& property : Properties) {
    if (files.contains(property.id)) {  // the reset value has none
      readings.push_back(Read(property));
      readings.back().otherDriver = otherDriver;
    }
  }
  return {supply.Name(), std::move(readings), otherDriver && supply.CountsEnergy()};
}

std::string Gauge::File(const Property& property) const {
  const auto file = files.find(property.id);
  return file != files.end() ? file->second.location : "";
}

std::string Gauge::Reason(const Reading& reading) const {
  const std::string absence = supply.Absence();
  return absence.empty() ? reading.Reason() : absence;
}

std::string Gauge::Missing(const Readings& readings) const {
  const std::string absence = supply.Absence();
  return absence.empty() ? Concat("no value could be read in '", supply.Folder(),
                                  "': ", readings.Telling().Reason())
                         : absence;
}

}  // namespace fuelgauge
