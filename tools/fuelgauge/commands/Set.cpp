// SPDX-License-Identifier: MIT
#include <cerrno>
#include <memory>

#include "commands/Commands.hpp"
#include "commands/RecordWrite.hpp"
#include "gauge/Concat.hpp"
#include "gauge/LifetimeInput.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

using dral::FuelGaugeStatus;

struct SetOptions {
  std::string property;
  std::vector<std::string> values;
};

ExitStatus Set(const Gauge& gauge, const SetOptions& options) {
  const Property& property = FindProperty(options.property);
  dral::LifetimeData record;
  if (property.type != Type::Lifetime) {
    const FuelGaugeStatus status = gauge->Set(property.id, options.values.front());
    return WriteOutcome(gauge, property, record, status, errno);
  }
  const FieldValues values = ParseAssignments(options.values);  // before the gauge is touched
  const Descriptor lock = LockRecord(gauge, property);
  const Reading held = gauge.Read(property);
  if (held.Record() == nullptr) {
    throw ToolError(ToExitStatus(held.status),
                    Concat(property.name, ": not written: ", gauge.Reason(held)));
  }
  record = *held.Record();
  Store(values, record);
  const FuelGaugeStatus status = gauge->Set(property.id, record);
  return WriteOutcome(gauge, property, record, status, errno);
}

}  // namespace

Action AddSet(CLI::App& parser) {
  const auto options = std::make_shared<SetOptions>();
  parser.add_option("PROPERTY", options->property, "LifetimeData")->required();
  parser.add_option("VALUE", options->values, "FIELD=VALUE; other fields keep their values")
      ->required();
  return [options](const Request& request) { return Set(Gauge(request.One()), *options); };
}

}  // namespace fuelgauge
