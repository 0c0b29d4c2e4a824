// SPDX-License-Identifier: MIT
// How each kind of failure ends, and why: the status, and the error of the system call that failed.
#include <FuelGaugeNames.hpp>
#include <OpenFuelGauge.hpp>
#include <cerrno>
#include <cstring>
#include <iostream>

using namespace dral;

static void Print(std::string_view what, FuelGaugeStatus status) {
  const int error = errno;  // at once: what runs next may change it
  std::cout << what << ": " << NameOf(status) << ", "
            << (error != 0 ? std::strerror(error) : "no system call failed") << "\n";
}

int main() {
  const auto gauge = OpenFuelGauge();
  for (const auto property : {FuelGaugeProperty::VoltageNow, FuelGaugeProperty::CurrentNow,
                              FuelGaugeProperty::Temperature, FuelGaugeProperty::TimeToEmpty,
                              FuelGaugeProperty::CycleCount, FuelGaugeProperty::StateOfCharge,
                              FuelGaugeProperty::LifetimeDataResetValue}) {
    Print(NameOf(property), gauge->Get<int>(property).first);
  }
  Print("the record", gauge->Get<LifetimeData>(FuelGaugeProperty::LifetimeData).first);
  Print("a new record", gauge->Set(FuelGaugeProperty::LifetimeData, LifetimeData{}));
  Print("a new voltage", gauge->Set(FuelGaugeProperty::VoltageNow, 3700000));
}
