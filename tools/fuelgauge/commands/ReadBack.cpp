// SPDX-License-Identifier: MIT
#include "commands/ReadBack.hpp"

#include "output/Message.hpp"
#include "output/Table.hpp"
#include "readings/LifetimeField.hpp"

namespace fuelgauge {

using dral::FuelGaugeStatus;

ExitStatus Refused(const Property& property, FuelGaugeStatus status) {
  const std::string_view reason = status == FuelGaugeStatus::FileError
                                      ? "no such file, or no right to write it"
                                      : "it is read-only";
  Complain(std::string(property.name) + ": not written: " + std::string(reason));
  return ToExitStatus(status);
}

ExitStatus Unreadable(const Gauge& gauge, const Reading& reading, std::string_view consequence) {
  const Property& property = *reading.property;
  Complain(std::string(property.name) + ": " +
           gauge.ExplainRead(property, property.type, reading.status) + std::string(consequence));
  return ToExitStatus(reading.status);
}

ExitStatus ReadBack(const Gauge& gauge, const Property& property,
                    const dral::LifetimeData& written) {
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
    Complain(std::string(property.name) + ": the gauge did not take the write" + differences);
    return ExitStatus::ReadBackDiffers;
  }
  PrintRow(property.name, "written, and read back the same", "");
  PrintFields(held);
  return ExitStatus::Success;
}

}  // namespace fuelgauge
