// SPDX-License-Identifier: MIT
// Takes the library's log records: here those on a field that an override file does not name.
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
}
