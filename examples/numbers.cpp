// SPDX-License-Identifier: MIT
// Reads a gauge made of files in a temporary folder: what counts as a number.
#include <Bq27542FuelGauge.hpp>
#include <FuelGaugeNames.hpp>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

using namespace dral;

int main() {
  std::string folder = "/tmp/gauge-XXXXXX";
  if (mkdtemp(folder.data()) == nullptr) {
    return 1;
  }
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder));

  for (const auto* text : {"74", " +74 mA", "74%", "7.9", "1e3", "0x4A", "2", "1", "full", ""}) {
    std::ofstream(folder + "/capacity") << text;
    const auto [status, number] = gauge.Get<int>(FuelGaugeProperty::StateOfCharge);
    const bool flag = gauge.Get<bool>(FuelGaugeProperty::StateOfCharge).second;
    std::cout << "'" << text << "' " << NameOf(status) << ", int " << number << ", bool "
              << (flag ? "true\n" : "false\n");
  }
  std::filesystem::remove_all(folder);
}
