// SPDX-License-Identifier: MIT
// Takes the library's log records: here those on a field that an override file does not name. Then it is quiet.
#include <Bq27542FuelGauge.hpp>
#include <FuelGaugeNames.hpp>
#include <LogOutput.hpp>
#include <OpenFuelGauge.hpp>
#include <fstream>
#include <iostream>

using namespace dral;

int main() {
  LogOutput::SetLevel(LogLevel{3});
  LogOutput::SetSink([](const LogRecord& record) {
    std::cout << static_cast<unsigned>(record.level) << " " << record.text << "\n";
  });

  std::ofstream("lifetime.conf") << "maxTemp 550\nminTemp -100\nmaxPackVoltage 4400\n"
                                 << "minPackVoltage 2800\nmaxChargeCurrent 2500\n";
  OpenFuelGauge("lifetime.conf");

  // A gauge that is away may be asked as often as you like.
  LogOutput::SetLevel(LogLevel{0});
  Bq27542FuelGauge away("", Bq27542FuelGauge::PropertyMapAt("away"));
  std::cout << NameOf(away.Get<int>(FuelGaugeProperty::VoltageNow).first) << "\n";
}
