// SPDX-License-Identifier: MIT
// The two commands that write the lifetime record, and read it back.
#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <memory>
#include <thread>

#include "commands/Commands.hpp"
#include "gauge/Concat.hpp"
#include "gauge/Descriptor.hpp"
#include "gauge/Errors.hpp"
#include "gauge/Files.hpp"
#include "gauge/LifetimeInput.hpp"
#include "output/Message.hpp"
#include "output/Table.hpp"

namespace fuelgauge {
namespace {

using dral::FuelGaugeStatus;

struct WriteOptions {
  std::string property;
  std::vector<std::string> values;
};

// An advisory lock, flock(2), on the property's file, as long as the answer lives. Of two processes that read,
// change and write the record under such a lock, neither loses what the other wrote. A file that cannot be opened
// or locked is left unlocked: the read or the write that follows says what is wrong with it.
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

std::string Differences(const dral::LifetimeData& held, const dral::LifetimeData& written) {
  std::string differences;
  for (const LifetimeField& field : LifetimeFields) {
    if (field.Value(held) != field.Value(written)) {
      differences +=
          Concat("; ", field.name, " is ", field.Value(held), ", not ", field.Value(written));
    }
  }
  return differences + (held.reserved == written.reserved ? "" : "; the reserved bytes differ");
}

// Says what became of a write: why it was refused, by its status and the errno after it, or whether the gauge holds
// the record now.
ExitStatus Outcome(const Gauge& gauge, const Property& property, const dral::LifetimeData& written,
                   FuelGaugeStatus status, int error) {
  const auto complain = [&property](const auto&... parts) {
    Complain(Concat(property.name, ": ", parts...));
  };
  if (status != FuelGaugeStatus::Success) {
    const std::string absence = gauge.TheSupply().Absence();
    complain("not written: ", status != FuelGaugeStatus::FileError ? "it is read-only"
                              : absence.empty()                    ? ErrorText(error)
                                                                   : absence);
    return ToExitStatus(status);
  }
  if (error != 0) {
    complain("the kernel refused the write: ", ErrorText(error));
  }
  const Reading reading = gauge.Read(property);
  const auto* const held = reading.Record();
  if (held == nullptr) {
    complain(gauge.Reason(reading), "; whether the write was taken is not known");
    return ToExitStatus(reading.status);
  }
  const std::string differences = Differences(*held, written);
  if (!differences.empty()) {
    complain("the gauge did not take the write", differences);
  }
  if (!differences.empty() || error != 0) {
    return ExitStatus::ReadBackDiffers;
  }
  PrintRow(property.name, "written, and read back the same", "");
  PrintFields(*held);
  return ExitStatus::Success;
}

ExitStatus Set(const Gauge& gauge, const WriteOptions& options) {
  const Property& property = FindProperty(options.property);
  if (property.type != Type::Lifetime) {
    const FuelGaugeStatus status = gauge->Set(property.id, options.values.front());
    return Outcome(gauge, property, {}, status, errno);
  }
  const FieldValues values = ParseAssignments(options.values);  // before the gauge is touched
  const Descriptor lock = LockRecord(gauge, property);
  const Reading held = gauge.Read(property);
  if (held.Record() == nullptr) {
    throw ToolError(ToExitStatus(held.status),
                    Concat(property.name, ": not written: ", gauge.Reason(held)));
  }
  dral::LifetimeData record = *held.Record();
  Store(values, record);
  const FuelGaugeStatus status = gauge->Set(property.id, record);
  return Outcome(gauge, property, record, status, errno);
}

ExitStatus Reset(const Gauge& gauge, const WriteOptions& options) {
  const Property& property = FindProperty(options.property);
  const Descriptor lock = LockRecord(gauge, property);
  const auto record =
      gauge->Get<dral::LifetimeData>(dral::FuelGaugeProperty::LifetimeDataResetValue).second;
  const FuelGaugeStatus status = gauge->Reset(property.id);
  return Outcome(gauge, property, record, status, errno);
}

}  // namespace

Action AddSet(CLI::App& parser) {
  const auto options = std::make_shared<WriteOptions>();
  parser.add_option("PROPERTY", options->property, "LifetimeData")->required();
  parser.add_option("VALUE", options->values, "FIELD=VALUE; other fields keep their values")
      ->required();
  return [options](const Request& request) { return Set(Gauge(request.One()), *options); };
}

Action AddReset(CLI::App& parser) {
  const auto options = std::make_shared<WriteOptions>();
  parser.add_option("PROPERTY", options->property, "LifetimeData")->required();
  return [options](const Request& request) { return Reset(Gauge(request.One()), *options); };
}

}  // namespace fuelgauge
