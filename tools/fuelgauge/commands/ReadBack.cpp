// SPDX-License-Identifier: MIT
#include "commands/ReadBack.hpp"

#include "output/Message.hpp"
#include "output/Table.hpp"
#include "readings/LifetimeField.hpp"

namespace fuelgauge {

using dral::FuelGaugeStatus;

ExitStatus Refused(const Gauge& gauge, const Property& property, FuelGaugeStatus status) {
  const std::string reason =
      status == FuelGaugeStatus::FileError ? WriteRefusal(gauge.File(property)) : "it is read-only";
  Complain(std::string(property.name) + ": not written: " + reason);
  return ToExitStatus(status);
}

ExitStatus Unreadable(const Reading& reading, std::string_view consequence) {
  Complain(std::string(reading.property->name) + ": " + reading.Reason() +
           std::string(consequence));
  return ToExitStatus(reading);
}

ExitStatus ReadBack(const Gauge& gauge, const Property& property,
                    const dral::LifetimeData& written) {
  const Reading reading = gauge.Read(property);
  if (reading.Record() == nullptr) {
    return Unreadable(reading, "; whether the write was taken is not known");
  }
  const dral::LifetimeData& held = *reading.Record();
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

}  // namespace fuelgauge
