// SPDX-License-Identifier: MIT
// Reads a gauge of another name: here the one that a second gauge on the same bus would get.
#include <Bq27542FuelGauge.hpp>
#include <iostream>

using namespace dral;

int main() {
  const auto* const directory = "/sys/class/power_supply/bq27542-1";
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(directory));
  const auto [status, percent] = gauge.Get<unsigned int>(FuelGaugeProperty::StateOfCharge);
  if (status != FuelGaugeStatus::Success) {
    std::cerr << "no charge to be read in " << directory << "\n";
    return 1;
  }
  std::cout << percent << " %\n";
}
