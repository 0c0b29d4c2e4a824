// SPDX-License-Identifier: MIT
#include <optional>

#include "Commands.hpp"
#include "Gauge.hpp"
#include "Presentation.hpp"
#include "Property.hpp"
#include "Units.hpp"

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;

namespace {

// Prints a value of the property's natural type.
struct PrintValue {
  const Property& property;

  void operator()(const std::string& text) const { PrintRow(property.name, text, ""); }
  void operator()(bool flag) const { PrintRow(property.name, flag ? "yes" : "no", ""); }
  void operator()(const dral::LifetimeData& data) const {
    PrintRow(property.name, "", "");
    PrintFields(data);
  }
  template <typename Number>
  void operator()(Number number) const {
    const bool converted = property.unit != Unit::None && property.unit != Unit::Percent;
    PrintRow(property.name, ForPeople(number, property.unit),
             converted ? Raw(number, property.unit) : "");
  }
};

}  // namespace

ExitStatus List(dral::FuelGaugeIF& gauge, bool json) {
  Json answers;
  bool anyRead = false;
  std::optional<FuelGaugeStatus> firstFailure;
  for (const Property& property : Properties) {
    if (property.id == FuelGaugeProperty::LifetimeDataResetValue) {
      continue;  // not read from the gauge
    }
    const auto [status, value] = gauge.Get(property.id, property.natural);
    if (status == FuelGaugeStatus::Success) {
      anyRead = true;
    } else if (!firstFailure) {
      firstFailure = status;
    }
    if (json) {
      answers[std::string(property.name)] = ToJson(status, value);
    } else if (status == FuelGaugeStatus::Success) {
      std::visit(PrintValue{property}, value);
    } else {
      PrintRow(property.name, "-", ExplainRead(gauge, property, property.natural, status));
    }
  }
  if (json) {
    Print(answers);
  }
  if (!anyRead) {
    Complain("no property could be read: is there a gauge, and is its driver loaded?");
    return ToExitStatus(*firstFailure);
  }
  return ExitStatus::Success;
}
