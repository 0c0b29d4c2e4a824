// SPDX-License-Identifier: MIT
#include <iostream>

#include "Commands.hpp"
#include "Gauge.hpp"
#include "LifetimeField.hpp"
#include "Presentation.hpp"
#include "Property.hpp"

using dral::FuelGaugeStatus;

namespace {

// Prints the bare value, for scripts.
struct PrintBare {
  void operator()(bool flag) const { std::cout << (flag ? "true" : "false") << "\n"; }
  void operator()(const dral::LifetimeData& data) const {
    for (const LifetimeField& field : LifetimeFields) {  // just what an override file holds
      std::cout << field.name << " " << field.Value(data) << "\n";
    }
  }
  template <typename T>
  void operator()(const T& value) const {
    std::cout << value << "\n";
  }
};

}  // namespace

ExitStatus Get(dral::FuelGaugeIF& gauge, const std::string& name,
               const std::optional<dral::PropertyValue>& type, bool json) {
  const Property& property = FindProperty(name);
  const dral::PropertyValue& hint = type ? *type : property.natural;
  const auto [status, value] = gauge.Get(property.id, hint);
  if (json) {
    Print({{name, ToJson(status, value)}});
  } else if (status == FuelGaugeStatus::Success) {
    std::visit(PrintBare{}, value);
  }
  if (status != FuelGaugeStatus::Success) {
    Complain(name + ": " + ExplainRead(gauge, property, hint, status));
  }
  return ToExitStatus(status);
}
