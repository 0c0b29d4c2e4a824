// SPDX-License-Identifier: MIT
// Loaded by a test when the program has long been running.
#include <FuelGaugeIF.hpp>

extern "C" __attribute__((visibility("default"))) const void* LateRegistry() {
  return &dral::IF<dral::FuelGaugeIF>::ifConstructors<std::string_view>;
}
