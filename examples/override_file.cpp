// SPDX-License-Identifier: MIT
// Resets the lifetime record to values of one's own, from a file of fields.
#include <OpenFuelGauge.hpp>
#include <fstream>
#include <iostream>

using namespace dral;

int main() {
  const std::string path = "lifetime.conf";
  std::ofstream(path) << "maxTemp 550\nminTemp -100\n";
  try {
    const auto gauge = OpenFuelGauge(path);
    if (gauge->Reset(FuelGaugeProperty::LifetimeData) != FuelGaugeStatus::Success) {
      return 1;
    }
    std::cout << gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeData).second.ToString();
  } catch (const std::logic_error& error) {
    std::cerr << path << ": a value is no number (" << error.what() << ")\n";
    return 2;
  }
}
