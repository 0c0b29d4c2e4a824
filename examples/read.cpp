// SPDX-License-Identifier: MIT
// Reads a number and the record: a value counts only when its status says so.
#include <OpenFuelGauge.hpp>
#include <iostream>

using namespace dral;

int main() {
  auto gauge = OpenFuelGauge();
  auto [status, microvolts] = gauge->Get<int>(FuelGaugeProperty::VoltageNow);
  if (status != FuelGaugeStatus::Success) {
    return 1;
  }
  std::cout << microvolts << " µV\n";
  auto record = gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeData);
  if (record.first == FuelGaugeStatus::Success) {
    std::cout << record.second.ToString();
  }
}
