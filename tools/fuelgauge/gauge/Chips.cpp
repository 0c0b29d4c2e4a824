// SPDX-License-Identifier: MIT
#include "gauge/Chips.hpp"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "gauge/RegularFile.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

constexpr auto Bus = "/sys/bus/i2c/devices";
constexpr auto KernelsDriver = "/sys/bus/i2c/drivers/bq27xxx-battery";  // there also when built in
constexpr auto Hdq =
    "/sys/bus/w1/devices/01-000000000000";  // alone on its wire: it needs no number

// What cannot be asked is not guessed.
bool IsThere(const std::string& path) {
  if (::access(path.c_str(), F_OK) == 0) {
    return true;
  }
  if (errno != ENOENT) {
    throw UsageError(Concat("'", path, "': ", ErrorText(errno)));
  }
  return false;
}

std::string ChipName(const std::string& device) {
  try {
    const std::string text = ContentsOf(device + "/name");
    return text.substr(0, text.find('\n'));
  } catch (const UsageError& error) {
    throw UsageError(Concat("'", device, "/name': ", error.text));
  }
}

// In the order of their names.
std::vector<std::string> DevicesOfBus() {
  std::error_code error;
  std::vector<std::string> devices;
  std::filesystem::directory_iterator folder(Bus, error);
  for (; !error && folder != std::filesystem::directory_iterator(); folder.increment(error)) {
    devices.push_back(folder->path());
  }
  if (error) {
    throw UsageError(Concat("'", Bus, "': ", ErrorText(error.value())));
  }
  std::sort(devices.begin(), devices.end());
  return devices;
}

std::string NextStep(const std::string& device, const std::string& name) {
  const std::string address = device.substr(device.rfind('/') + 1);
  const std::string chip = Concat("the chip '", address, "' ('", name, "') ");
  if (IsThere(device + "/driver")) {
    return chip + "has a driver, but no supply: see the kernel's log (dmesg)";
  }
  const std::string unbound = chip + "is declared, but no driver is bound to it, and ";
  if (IsThere(KernelsDriver)) {
    return Concat(unbound,
                  "bq27xxx_battery_i2c is loaded: see the kernel's log (dmesg), or write '",
                  address, "' to '", KernelsDriver, "/bind'");
  }
  return unbound +
         "bq27xxx_battery_i2c is not loaded: run 'modprobe bq27xxx_battery_i2c', which the kernel "
         "has "
         "with CONFIG_BATTERY_BQ27XXX_I2C";
}

std::string Declare() {
  const std::string none = "no chip is declared on I2C";
  return IsThere(Hdq)
             ? Concat(none, ", but there is '", Hdq,
                      "' on HDQ: run 'modprobe bq27xxx_battery_hdq', which calls its "
                      "supply bq27000-battery")
             : Concat(none,
                      ": declare it in the device tree or ACPI, or write 'bq27542 0x55' to "
                      "new_device of its bus in '",
                      Bus, "'");
}

}  // namespace

bool IsChip(std::string_view name) {
  constexpr std::array<std::string_view, 4> Families = {"bq27", "bq28", "bq34", "bq78"};
  return std::any_of(Families.begin(), Families.end(),
                     [name](std::string_view family) { return name.starts_with(family); });
}

std::string ChipWithoutSupply(bool expected) {
  try {
    bool declared = false;
    for (const std::string& device : DevicesOfBus()) {
      const std::string name = ChipName(device);
      declared |= IsChip(name);
      if (IsChip(name) && !IsThere(device + "/power_supply")) {
        return NextStep(device, name);
      }
    }
    return declared || !expected ? "" : Declare();
  } catch (const UsageError& error) {
    return expected ? "whether a chip is declared is not known: " + error.text : "";
  }
}

}  // namespace fuelgauge
