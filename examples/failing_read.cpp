// SPDX-License-Identifier: MIT
// Tells a value that is not there now from a gauge that is gone. A number only fails; text tells why.
#include <FuelGaugeIF.hpp>
#include <iostream>

using namespace dral;

int main() {
  const auto gauge =
      InterfaceFactory::Create<FuelGaugeIF, std::string_view>("Bq27542FuelGauge", "");
  const auto [status, seconds] = gauge->Get<int>(FuelGaugeProperty::TimeToEmpty);
  if (status == FuelGaugeStatus::Success) {
    std::cout << seconds << " s to empty\n";
    return 0;
  }
  const auto why = gauge->Get<std::string>(FuelGaugeProperty::TimeToEmpty).first;
  std::cout << (why == FuelGaugeStatus::NoData      ? "no time to empty: not discharging?\n"
                : why == FuelGaugeStatus::FileError ? "no gauge\n"
                                                    : "try again\n");
  return static_cast<int>(why);
}
