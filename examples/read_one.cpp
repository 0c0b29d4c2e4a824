// SPDX-License-Identifier: MIT
// Reads one value and believes it only when the status says so.
#include <OpenFuelGauge.hpp>
#include <iostream>

using namespace dral;

int main() {
  const auto gauge = OpenFuelGauge();
  const auto [status, microvolts] = gauge->Get<int>(FuelGaugeProperty::VoltageNow);
  if (status != FuelGaugeStatus::Success) {
    return 1;
  }
  std::cout << "The battery has " << microvolts << " µV\n";
}
