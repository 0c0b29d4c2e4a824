// SPDX-License-Identifier: MIT
#include "Gauge.hpp"

#include <Bq27542FuelGauge.hpp>
#include <LifetimeDataParser.hpp>
#include <fstream>
#include <set>
#include <stdexcept>

#include "UsageError.hpp"

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;

namespace {

// The library's exception says that a value is wrong, but not which: ask its table entry by entry.
std::string BadEntry(const std::string& lifetimeFile) {
  std::ifstream file(lifetimeFile);
  std::set<std::string> seen;
  for (dral::LifetimeDataParser::kv_pair pair; file >> pair;) {
    const auto field = dral::LifetimeDataParser::mapping.find(pair.key);
    if (field == dral::LifetimeDataParser::mapping.end() || !seen.insert(pair.key).second) {
      continue;
    }
    try {
      dral::LifetimeData scratch;
      field->second(pair.value, scratch);
    } catch (const std::logic_error&) {
      return pair.key + " is '" + pair.value + "', which is not a number that fits";
    }
  }
  return "a value is not a number that fits";
}

}  // namespace

std::unique_ptr<dral::FuelGaugeIF> OpenGauge(const std::string& device,
                                             const std::string& lifetimeFile) {
  try {
    if (device.empty()) {
      return dral::InterfaceFactory::Create<dral::FuelGaugeIF, std::string_view>("Bq27542FuelGauge",
                                                                                 lifetimeFile);
    }
    return std::make_unique<dral::Bq27542FuelGauge>(lifetimeFile,
                                                    dral::Bq27542FuelGauge::PropertyMapAt(device));
  } catch (const std::logic_error&) {
    throw UsageError("lifetime file '" + lifetimeFile + "': " + BadEntry(lifetimeFile));
  }
}

std::string ExplainRead(dral::FuelGaugeIF& gauge, const Property& property,
                        FuelGaugeStatus status) {
  std::string text;
  if (status == FuelGaugeStatus::Failure) {
    std::tie(status, text) = gauge.Get<std::string>(property.id);
  }
  switch (status) {
    case FuelGaugeStatus::Success:
      return "'" + text + "' is not a value of the type asked for";
    case FuelGaugeStatus::Failure:
      return "the gauge has no such property";
    case FuelGaugeStatus::FileError:
      return property.id == FuelGaugeProperty::LifetimeData
                 ? "no such file: the kernel's own driver does not offer it, a vendor's does"
                 : "no such file, or no right to read it";
    case FuelGaugeStatus::NoData:
      break;
  }
  if (property.id == FuelGaugeProperty::TimeToEmpty &&
      gauge.Get<std::string>(FuelGaugeProperty::Status).second != "Discharging") {
    return "none while the battery is not discharging";
  }
  return "the gauge gives no value now";
}
