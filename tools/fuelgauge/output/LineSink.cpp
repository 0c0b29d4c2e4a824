// SPDX-License-Identifier: MIT
#include "output/LineSink.hpp"

#include <iostream>

#include "output/Text.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

void Tell(const Summary& summary) {
  for (const std::string& line : summary.Lines()) {
    Complain(line);
  }
}

void LineSink::Sample(const std::string& time, const Readings& readings) {
  if (!readings.AnySucceeded()) {
    return;
  }
  std::cout << time;
  for (const auto id : {Status, StateOfCharge, VoltageNow, CurrentNow, Temperature}) {
    std::cout << "  " << TerminalSafe(readings[id].ForPeople());
  }
  std::cout << "\n";
}

}  // namespace fuelgauge
