// SPDX-License-Identifier: MIT
#include "commands/WriteOutcome.hpp"

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "gauge/LifetimeField.hpp"
#include "output/Message.hpp"
#include "output/Table.hpp"

namespace fuelgauge {

ExitStatus WriteOutcome(const Gauge& gauge, const Property& property,
                        const dral::LifetimeData& written, dral::FuelGaugeStatus status,
                        int error) {
  if (status != dral::FuelGaugeStatus::Success) {
    const std::string absence = gauge.TheSupply().Absence();
    Complain(Concat(property.name, ": not written: ",
                    status != dral::FuelGaugeStatus::FileError ? "it is read-only"
                    : absence.empty()                          ? ErrorText(error)
                                                               : absence));
    return ToExitStatus(status);
  }
  if (error != 0) {
    Complain(Concat(property.name, ": the kernel refused the write: ", ErrorText(error)));
  }
  const Reading reading = gauge.Read(property);
  if (reading.Record() == nullptr) {
    Complain(Concat(property.name, ": ", gauge.Reason(reading),
                    "; whether the write was taken is not known"));
    return ToExitStatus(reading.status);
  }
  const dral::LifetimeData& held = *reading.Record();
  std::string differences;
  for (const LifetimeField& field : LifetimeFields) {
    if (field.Value(held) != field.Value(written)) {
      differences +=
          Concat("; ", field.name, " is ", field.Value(held), ", not ", field.Value(written));
    }
  }
  if (held.reserved != written.reserved) {
    differences += "; the reserved bytes differ";
  }
  if (!differences.empty()) {
    Complain(Concat(property.name, ": the gauge did not take the write", differences));
  }
  if (!differences.empty() || error != 0) {
    return ExitStatus::ReadBackDiffers;
  }
  PrintRow(property.name, "written, and read back the same", "");
  PrintFields(held);
  return ExitStatus::Success;
}

}  // namespace fuelgauge
