// SPDX-License-Identifier: MIT
// Reads a number and the record of the first gauge, and every text of a second one: a value counts only when its
// status says so, and what cannot be read does not hide the others.
#include <Bq27542FuelGauge.hpp>
#include <FuelGaugeNames.hpp>
#include <OpenFuelGauge.hpp>
#include <iostream>

using namespace dral;

int main() {
  auto gauge = OpenFuelGauge();
  auto [status, microvolts] = gauge->Get<int>(FuelGaugeProperty::VoltageNow);
  if (status != FuelGaugeStatus::Success) return 1;
  std::cout << microvolts << " µV\n";
  auto record = gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeData);
  if (record.first == FuelGaugeStatus::Success) std::cout << record.second.ToString();

  Bq27542FuelGauge second{"", Bq27542FuelGauge::PropertyMapAt("/sys/class/power_supply/bq27542-1")};
  for (const auto property : {FuelGaugeProperty::Name, FuelGaugeProperty::Status}) {
    const auto [found, text] = second.Get<std::string>(property);
    std::cout << NameOf(property) << " " << (found == FuelGaugeStatus::Success ? text : "-")
              << "\n";
  }
}
