// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <memory>
#include <string>
#include <utility>

#include "Bare.hpp"
#include "Benchmarks.hpp"

using namespace dral;

void AddSysfs() {
  // An attribute that every machine has. It is read only: a write would reach the network.
  const std::string device = "/sys/class/net/lo";
  const std::string attribute = "mtu";
  const std::string path = device + "/" + attribute;
  constexpr auto Property = FuelGaugeProperty::VoltageNow;

  auto map = std::make_unique<PropertyMap>();
  (*map)[Property] = {.propertyName = attribute, .location = path};
  static Bq27542FuelGauge gauge("", std::move(map));

  AddNumberReads("sysfs", gauge, Property, path);
  Add("sysfs/Floor/string", [path] { return bare::ReadText(path); });
  Add("sysfs/Get/string", [] { return Get<std::string>(gauge, Property); });
#ifdef BENCH_SD_DEVICE
  AddSdDevice("sysfs", device, attribute);
#endif
}
