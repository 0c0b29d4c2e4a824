// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <FuelGaugeIF.hpp>
#include <LifetimeDataParser.hpp>
#include <iostream>

int main() {
  using namespace dral;
  const auto gauge =
      InterfaceFactory::Create<FuelGaugeIF, std::string_view>("Bq27542FuelGauge", "");
  const auto [status, record] = gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeDataResetValue);
  std::cout << record.ToString() << Bq27542FuelGauge::HealthPropertyInfo
            << LifetimeDataParser::mapping.size() << "\n";
  return status == FuelGaugeStatus::Success ? 0 : 1;
}
