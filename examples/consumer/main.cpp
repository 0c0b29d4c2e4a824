// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <LifetimeDataParser.hpp>
#include <OpenFuelGauge.hpp>
#include <iostream>

int main() {
  using namespace dral;
  const auto gauge = OpenFuelGauge();
  const auto [status, record] = gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeDataResetValue);
  std::cout << record.ToString() << Bq27542FuelGauge::HealthPropertyInfo
            << LifetimeDataParser::mapping.size() << "\n";
  return status == FuelGaugeStatus::Success ? 0 : 1;
}
