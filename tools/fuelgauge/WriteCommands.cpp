// SPDX-License-Identifier: MIT
#include <set>

#include "Commands.hpp"
#include "Gauge.hpp"
#include "LifetimeField.hpp"
#include "Presentation.hpp"
#include "Property.hpp"
#include "UsageError.hpp"

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;
using dral::LifetimeData;

namespace {

ExitStatus Refused(const Property& property, FuelGaugeStatus status) {
  const std::string_view reason = status == FuelGaugeStatus::FileError
                                      ? "no such file, or no right to write it"
                                      : "it is read-only";
  Complain(std::string(property.name) + ": not written: " + std::string(reason));
  return ToExitStatus(status);
}

ExitStatus Unreadable(dral::FuelGaugeIF& gauge, const Property& property, FuelGaugeStatus status,
                      std::string_view consequence) {
  Complain(std::string(property.name) + ": " +
           ExplainRead(gauge, property, property.natural, status) + std::string(consequence));
  return ToExitStatus(status);
}

// The library cannot tell whether the kernel took a write, since a file's bytes leave it on
// closing; reading back can.
ExitStatus ReadBack(dral::FuelGaugeIF& gauge, const Property& property,
                    const LifetimeData& written) {
  const auto [status, held] = gauge.Get<LifetimeData>(property.id);
  if (status != FuelGaugeStatus::Success) {
    return Unreadable(gauge, property, status, "; whether the write was taken is not known");
  }
  std::string differences;
  for (const LifetimeField& field : LifetimeFields) {
    if (field.Value(held) != field.Value(written)) {
      differences += "; " + std::string(field.name) + " is " + std::to_string(field.Value(held)) +
                     ", not " + std::to_string(field.Value(written));
    }
  }
  if (held.reserved != written.reserved) {
    differences += "; the reserved bytes differ";
  }
  if (!differences.empty()) {
    Complain(std::string(property.name) + ": the gauge did not take the write" + differences);
    return ExitStatus::ReadBackDiffers;
  }
  PrintRow(property.name, "written, and read back the same", "");
  PrintFields(held);
  return ExitStatus::Success;
}

}  // namespace

ExitStatus Set(dral::FuelGaugeIF& gauge, const std::string& name,
               const std::vector<std::string>& values) {
  const Property& property = FindProperty(name);
  if (property.id != FuelGaugeProperty::LifetimeData) {
    return Refused(property, gauge.Set(property.id, values.front()));
  }
  LifetimeData record;
  std::set<std::string> fields;
  for (const std::string& value : values) {  // all are judged before the gauge is touched
    Assign(record, value);
    if (!fields.insert(value.substr(0, value.find('='))).second) {
      throw UsageError("'" + value + "': the field is named twice");
    }
  }
  const auto [status, held] = gauge.Get<LifetimeData>(property.id);
  if (status != FuelGaugeStatus::Success) {
    return Unreadable(gauge, property, status, "; nothing was written");
  }
  record = held;
  for (const std::string& value : values) {
    Assign(record, value);
  }
  if (const FuelGaugeStatus written = gauge.Set(property.id, record);
      written != FuelGaugeStatus::Success) {
    return Refused(property, written);
  }
  return ReadBack(gauge, property, record);
}

ExitStatus Reset(dral::FuelGaugeIF& gauge, const std::string& name) {
  const Property& property = FindProperty(name);
  if (const FuelGaugeStatus status = gauge.Reset(property.id); status != FuelGaugeStatus::Success) {
    return Refused(property, status);
  }
  return ReadBack(gauge, property,
                  gauge.Get<LifetimeData>(FuelGaugeProperty::LifetimeDataResetValue).second);
}
