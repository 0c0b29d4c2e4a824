// SPDX-License-Identifier: MIT
#include "commands/RecordWrite.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "gauge/LifetimeField.hpp"
#include "gauge/RegularFile.hpp"
#include "gauge/ToolError.hpp"
#include "output/Message.hpp"
#include "output/Table.hpp"

namespace fuelgauge {

Descriptor LockRecord(const Gauge& gauge, const Property& property) {
  const std::string path = gauge.File(property);
  if (const std::string refusal = Unfit(path); !refusal.empty()) {
    throw ToolError(ExitStatus::FileError, Concat(property.name, ": not written: ", refusal));
  }
  Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  constexpr std::chrono::seconds Patience(3);
  const auto end = std::chrono::steady_clock::now() + Patience;
  while (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (std::chrono::steady_clock::now() >= end) {
      throw ToolError(ExitStatus::Busy,
                      Concat("not written: waited ", Patience.count(),
                             " s for another process, which holds a lock on '", path, "'"));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return file;
}

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
