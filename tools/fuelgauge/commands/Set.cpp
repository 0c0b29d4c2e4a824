// SPDX-License-Identifier: MIT
#include <cerrno>
#include <memory>
#include <set>

#include "commands/Commands.hpp"
#include "commands/ReadBack.hpp"
#include "commands/RecordLock.hpp"
#include "readings/LifetimeField.hpp"
#include "readings/RegularFile.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {
namespace {

using dral::FuelGaugeStatus;

struct SetOptions {
  std::string property;
  std::vector<std::string> values;
};

ExitStatus Set(const Gauge& gauge, const SetOptions& options) {
  const Property& property = FindProperty(options.property);
  if (property.type != Type::Lifetime) {
    const FuelGaugeStatus refused = gauge->Set(property.id, options.values.front());
    return Refused(gauge, property, refused, errno);
  }
  dral::LifetimeData record;
  std::set<std::string> fields;
  for (const std::string& value : options.values) {  // all are judged before the gauge is touched
    Assign(record, value);
    if (!fields.insert(value.substr(0, value.find('='))).second) {
      throw UsageError("'" + value + "': the field is named twice");
    }
  }
  if (const std::string reason = Unfit(gauge.File(property)); !reason.empty()) {
    return NotWritten(property, reason);
  }
  const RecordLock lock(gauge.File(property));
  const Reading held = gauge.Read(property);
  if (held.Record() == nullptr) {
    return Unreadable(gauge, held, "; nothing was written");
  }
  record = *held.Record();
  for (const std::string& value : options.values) {
    Assign(record, value);
  }
  RefuseCrossed(record, fields);
  const FuelGaugeStatus written = gauge->Set(property.id, record);
  const int error = errno;
  return written == FuelGaugeStatus::Success ? ReadBack(gauge, property, record, error)
                                             : Refused(gauge, property, written, error);
}

}  // namespace

Action AddSet(CLI::App& parser) {
  const auto options = std::make_shared<SetOptions>();
  parser.add_option("PROPERTY", options->property, "LifetimeData")->required();
  parser.add_option("VALUE", options->values, "FIELD=VALUE; other fields keep their values")
      ->required();
  return [options](const GaugeOptions& which) { return Set(Gauge(which), *options); };
}

}  // namespace fuelgauge
