// SPDX-License-Identifier: MIT
// Reads every property that is text as text: what cannot be read does not hide the others.
#include <OpenFuelGauge.hpp>
#include <iostream>

using namespace dral;

int main() {
  const auto gauge = OpenFuelGauge();
  for (auto number = 0U; number < static_cast<unsigned>(FuelGaugeProperty::LifetimeData);
       ++number) {
    const auto [status, text] = gauge->Get<std::string>(FuelGaugeProperty{number});
    std::cout << number << ": " << (status == FuelGaugeStatus::Success ? text : "-") << "\n";
  }
}
