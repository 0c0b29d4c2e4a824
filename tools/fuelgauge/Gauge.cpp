// SPDX-License-Identifier: MIT
#include "Gauge.hpp"

#include <sys/stat.h>

#include <Bq27542FuelGauge.hpp>
#include <LifetimeDataParser.hpp>
#include <fstream>
#include <set>
#include <stdexcept>
#include <tuple>
#include <variant>

#include "Presentation.hpp"
#include "UsageError.hpp"

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;

namespace {

// The library ignores what it cannot read and what it does not know, and says so in its log alone.
// Whoever names a file on the command line is told, before anything is written.
void CheckLifetimeFile(const std::string& path) {
  const auto refuse = [&path](const std::string& reason) {
    throw UsageError("lifetime file '" + path + "': " + reason);
  };
  // Not by std::filesystem: on a 32-bit machine it cannot see a file dated after the year 2037.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    refuse("no such regular file");
  }
  std::ifstream file(path);
  if (!file) {
    refuse("it cannot be opened");
  }
  std::set<std::string> fields;
  for (dral::LifetimeDataParser::kv_pair pair; file >> pair;) {
    const auto field = dral::LifetimeDataParser::mapping.find(pair.key);
    if (field == dral::LifetimeDataParser::mapping.end()) {
      Complain("lifetime file '" + path + "': no field named '" + Printable(pair.key) +
               "'; ignored");
      continue;
    }
    if (!fields.insert(pair.key).second) {
      continue;  // the first one counts
    }
    try {
      dral::LifetimeData scratch;
      field->second(pair.value, scratch);
    } catch (const std::logic_error&) {
      refuse(pair.key + " is '" + Printable(pair.value) + "', which is not a number that fits");
    }
  }
  if (file.bad()) {
    refuse("it cannot be read to its end");
  }
  if (fields.empty()) {
    refuse("it names none of the record's fields");
  }
}

}  // namespace

std::unique_ptr<dral::FuelGaugeIF> OpenGauge(const std::string& device,
                                             const std::string& lifetimeFile) {
  if (!lifetimeFile.empty()) {
    CheckLifetimeFile(lifetimeFile);
  }
  if (device.empty()) {
    return dral::InterfaceFactory::Create<dral::FuelGaugeIF, std::string_view>("Bq27542FuelGauge",
                                                                               lifetimeFile);
  }
  return std::make_unique<dral::Bq27542FuelGauge>(lifetimeFile,
                                                  dral::Bq27542FuelGauge::PropertyMapAt(device));
}

std::string ExplainRead(dral::FuelGaugeIF& gauge, const Property& property,
                        const dral::PropertyValue& hint, FuelGaugeStatus status) {
  const bool record = std::holds_alternative<dral::LifetimeData>(hint);
  // A number's failure has but one status, a record's does not tell a short file: text tells more.
  if (status == FuelGaugeStatus::Failure || (record && status == FuelGaugeStatus::NoData)) {
    std::string text;
    std::tie(status, text) = gauge.Get<std::string>(property.id);
    if (status == FuelGaugeStatus::Success) {
      if (gauge.Get(property.id, hint).first == FuelGaugeStatus::Success) {
        return "it could not be read, but now it can: try again";
      }
      return record ? "it holds no whole record of 32 bytes"
                    : "'" + Printable(text) + "' is not a value of the type asked for";
    }
  }
  switch (status) {
    case FuelGaugeStatus::FileError:
      return property.id == FuelGaugeProperty::LifetimeData
                 ? "no such file (only a vendor's driver offers it), or no right to read it"
                 : "no such file, or no right to read it";
    case FuelGaugeStatus::NoData:
      return property.id == FuelGaugeProperty::TimeToEmpty &&
                     gauge.Get<std::string>(FuelGaugeProperty::Status).second != "Discharging"
                 ? "none while the battery is not discharging"
                 : "the gauge gives no value now";
    default:
      return "the gauge has no such property";
  }
}
