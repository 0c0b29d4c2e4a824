// SPDX-License-Identifier: MIT
#include "commands/ReadBack.hpp"

#include "output/Message.hpp"
#include "output/Table.hpp"
#include "readings/Errors.hpp"
#include "readings/LifetimeField.hpp"

namespace fuelgauge {

using dral::FuelGaugeStatus;

ExitStatus NotWritten(const Property& property, const std::string& reason, FuelGaugeStatus status) {
  Complain(std::string(property.name) + ": not written: " + reason);
  return ToExitStatus(status);
}

ExitStatus Refused(const Gauge& gauge, const Property& property, FuelGaugeStatus status,
                   int error) {
  if (status != FuelGaugeStatus::FileError) {
    return NotWritten(property, "it is read-only", status);
  }
  const std::string absence = gauge.Absence();
  return NotWritten(property, absence.empty() ? ErrorText(error) : absence);
}

ExitStatus Unreadable(const Gauge& gauge, const Reading& reading, std::string_view consequence) {
  Complain(std::string(reading.property->name) + ": " + gauge.Reason(reading) +
           std::string(consequence));
  return ToExitStatus(reading.status);
}

ExitStatus ReadBack(const Gauge& gauge, const Property& property, const dral::LifetimeData& written,
                    int error) {
  const std::string name(property.name);
  if (error != 0) {
    Complain(name + ": the kernel refused the write: " + ErrorText(error));
  }
  const Reading reading = gauge.Read(property);
  if (reading.Record() == nullptr) {
    return Unreadable(gauge, reading, "; whether the write was taken is not known");
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
    Complain(name + ": the gauge did not take the write" + differences);
  }
  if (!differences.empty() || error != 0) {
    return ExitStatus::ReadBackDiffers;
  }
  PrintRow(property.name, "written, and read back the same", "");
  PrintFields(held);
  return ExitStatus::Success;
}

}  // namespace fuelgauge
