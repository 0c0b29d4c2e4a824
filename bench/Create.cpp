// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <memory>
#include <string_view>

#include "Benchmarks.hpp"

using namespace dral;

void AddCreate() {
  // A gauge opens no file until it is asked. What it cannot do without is a map of its own, so its
  // floor is one copy of the map.
  const std::shared_ptr<PropertyMap> map =
      Bq27542FuelGauge::PropertyMapAt("/sys/class/power_supply/bq27542-0");
  Add("memory/Floor/gauge", [map] { return !PropertyMap(*map).empty(); });
  Add("memory/Create/gauge", [] {
    return InterfaceFactory::Create<FuelGaugeIF, std::string_view>("DefaultIF", "") != nullptr;
  });
}
