// SPDX-License-Identifier: MIT
#include "gauge/Chips.hpp"

#include <cerrno>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"
#include "gauge/Files.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

constexpr auto Bus = "/sys/bus/i2c/devices";
constexpr auto KernelsDriver = "/sys/bus/i2c/drivers/bq27xxx-battery";  // there also when built in
constexpr auto Hdq = "/sys/bus/w1/devices/01-000000000000";  // alone on its wire: needs no number

// What cannot be asked is not guessed.
bool IsThere(const std::string& path) {
  const bool there = Exists(path);
  if (!there && errno != ENOENT) {
    throw UsageError(Concat("'", path, "': ", ErrorText(errno)));
  }
  return there;
}

std::string NextStep(const std::string& device, const std::string& name) {
  const std::string address = device.substr(device.rfind('/') + 1);
  const std::string chip = Concat("the chip '", address, "' ('", name, "') ");
  if (IsThere(device + "/driver")) {
    return chip + "has a driver, but no supply: see the kernel's log (dmesg)";
  }
  return Concat(chip, "is declared, but no driver is bound to it, and bq27xxx_battery_i2c is ",
                IsThere(KernelsDriver)
                    ? Concat("loaded: see the kernel's log (dmesg), or write '", address, "' to '",
                             KernelsDriver, "/bind'")
                    : "not loaded: run 'modprobe bq27xxx_battery_i2c', which the kernel has with "
                      "CONFIG_BATTERY_BQ27XXX_I2C");
}

std::string Declare() {
  return Concat("no chip is declared on I2C",
                IsThere(Hdq) ? Concat(", but there is '", Hdq,
                                      "' on HDQ: run 'modprobe bq27xxx_battery_hdq', which calls "
                                      "its supply bq27000-battery")
                             : Concat(": declare it in the device tree or ACPI, or write 'bq27542 "
                                      "0x55' to new_device of its bus in '",
                                      Bus, "'"));
}

}  // namespace

bool IsChip(std::string_view name) {
  const std::string_view family = name.substr(0, 4);
  return family == "bq27" || family == "bq28" || family == "bq34" || family == "bq78";
}

std::string ChipWithoutSupply(bool expected) {
  try {
    bool declared = false;
    for (const std::string& device : PathsIn(Bus)) {
      const std::string name = FirstLine(device + "/name");
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
