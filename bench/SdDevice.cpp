// SPDX-License-Identifier: MIT
#include <systemd/sd-device.h>

#include <charconv>
#include <cstring>
#include <memory>
#include <string>
#include <system_error>

#include "Benchmarks.hpp"

namespace {

using Device = std::shared_ptr<sd_device>;

Device Open(const std::string& path) {
  sd_device* device = nullptr;
  sd_device_new_from_syspath(&device, path.c_str());
  return {device, sd_device_unref};
}

bool Read(sd_device* device, const std::string& attribute) {
  const char* text = nullptr;
  int value = 0;
  if (device == nullptr || sd_device_get_sysattr_value(device, attribute.c_str(), &text) < 0) {
    return false;
  }
  const auto result = std::from_chars(text, text + std::strlen(text), value);
  benchmark::DoNotOptimize(value);
  return result.ec == std::errc();
}

}  // namespace

void AddSdDevice(const std::string& place, const std::string& device,
                 const std::string& attribute) {
  // A device object remembers what it has read, so that a reading of now takes a new object, ...
  Add(place + "/sd_device/int",
      [device, attribute] { return Read(Open(device).get(), attribute); });
  // ... or an old one that was told to forget.
  Add(place + "/sd_device-kept/int", [kept = Open(device), attribute] {
    return sd_device_set_sysattr_value(kept.get(), attribute.c_str(), nullptr) >= 0 &&
           Read(kept.get(), attribute);
  });
}
