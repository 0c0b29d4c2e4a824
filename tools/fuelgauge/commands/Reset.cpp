// SPDX-License-Identifier: MIT
#include <cerrno>
#include <memory>

#include "commands/Commands.hpp"
#include "commands/ReadBack.hpp"
#include "commands/RecordLock.hpp"
#include "readings/RegularFile.hpp"

namespace fuelgauge {
namespace {

ExitStatus Reset(const Gauge& gauge, const std::string& name) {
  const Property& property = FindProperty(name);
  if (const std::string reason = Unfit(gauge.File(property)); !reason.empty()) {
    return NotWritten(property, reason);
  }
  const RecordLock lock(gauge.File(property));
  const dral::FuelGaugeStatus status = gauge->Reset(property.id);
  const int error = errno;
  if (status != dral::FuelGaugeStatus::Success) {
    return Refused(gauge, property, status, error);
  }
  const auto written =
      gauge->Get<dral::LifetimeData>(dral::FuelGaugeProperty::LifetimeDataResetValue).second;
  return ReadBack(gauge, property, written, error);
}

}  // namespace

Action AddReset(CLI::App& parser) {
  const auto property = std::make_shared<std::string>();
  parser.add_option("PROPERTY", *property, "LifetimeData")->required();
  return [property](const GaugeOptions& which) { return Reset(Gauge(which), *property); };
}

}  // namespace fuelgauge
