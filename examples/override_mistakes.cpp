// SPDX-License-Identifier: MIT
// What becomes of mistakes in an override file.
#include <OpenFuelGauge.hpp>
#include <fstream>
#include <iostream>

using namespace dral;

int main() {
  for (const auto* text :
       {"maxTemp 550", "maxTemp=550", "maxtemp 550", "# upper limit\nmaxTemp 550", "maxTemp 70000",
        "maxTemp = 550", "maxTemp 9999999999", "maxPackVoltage high"}) {
    std::ofstream("lifetime.conf") << text << "\n";
    std::cout << text << ": ";
    try {
      const auto gauge = OpenFuelGauge("lifetime.conf");
      std::cout
          << gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeDataResetValue).second.maxTemp
          << "\n";
    } catch (const std::logic_error& error) {
      std::cout << "throws '" << error.what() << "'\n";
    }
  }
}
