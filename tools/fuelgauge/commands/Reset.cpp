// SPDX-License-Identifier: MIT
#include <cerrno>
#include <memory>

#include "commands/Commands.hpp"
#include "commands/RecordWrite.hpp"

namespace fuelgauge {
namespace {

ExitStatus Reset(const Gauge& gauge, const std::string& name) {
  const Property& property = FindProperty(name);
  const Descriptor lock = LockRecord(gauge, property);
  const auto record =
      gauge->Get<dral::LifetimeData>(dral::FuelGaugeProperty::LifetimeDataResetValue).second;
  const dral::FuelGaugeStatus status = gauge->Reset(property.id);
  return WriteOutcome(gauge, property, record, status, errno);
}

}  // namespace

Action AddReset(CLI::App& parser) {
  const auto property = std::make_shared<std::string>();
  parser.add_option("PROPERTY", *property, "LifetimeData")->required();
  return [property](const Request& request) { return Reset(Gauge(request.One()), *property); };
}

}  // namespace fuelgauge
