// SPDX-License-Identifier: MIT
#include "gauge/Supply.hpp"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "gauge/Chips.hpp"
#include "gauge/Concat.hpp"
#include "gauge/Files.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

// Those that the kernel has now. Without a class, there is none.
std::vector<Supply> Supplies() try {
  const std::vector<std::string> folders = PathsIn(SupplyClass);
  return {folders.begin(), folders.end()};
} catch (const UsageError&) {
  return {};
}

// Empty when it cannot be read: a supply that is going, or a folder that is none.
std::string Attribute(const std::string& path) try {
  return FirstLine(path);
} catch (const UsageError&) {
  return "";
}

}  // namespace

Supply::Supply(const std::string& device)
    : named(device != "." && device != ".." && device.find('/') == std::string::npos),
      folder(named ? Concat(SupplyClass, "/", device) : device) {}

std::string Supply::Name() const {
  const auto path = (std::filesystem::absolute(folder) / "").lexically_normal();
  return path.parent_path().filename();
}

std::string Supply::Type() const {
  return Attribute(folder + "/type");
}

bool Supply::IsOfDevice() const {
  return Attribute(folder + "/scope") == "Device";
}

// A vendor's driver for one of these gauges has a name like the kernel's, bq27xxx-battery. A gauge on a
// single wire has the driver of all that is on such wires; there the supply's own name tells.
bool Supply::HasOtherDriver() const {
  std::error_code none;
  const auto link = std::filesystem::read_symlink(folder + "/device/driver", none);
  const std::string driver = link.filename();
  return !driver.empty() && !driver.starts_with("bq27") &&
         !(driver == "w1_slave_driver" && Name().starts_with("bq27"));
}

bool Supply::CountsEnergy() const {
  return Exists(folder + "/energy_now") && !Exists(folder + "/charge_now");
}

std::string Supply::Absence() const {
  if (Exists(folder) || errno != ENOENT) {
    return "";
  }
  std::string text = Concat("there is no '", folder, "'");
  if (!named) {
    return text;
  }
  const bool alone = Supplies().empty();
  const std::string chip = ChipWithoutSupply(alone || IsChip(Name()));
  if (!chip.empty()) {
    return Concat(text, ": ", chip, alone ? "" : "; " + SuppliesForPeople());
  }
  return Concat(text, "; ", SuppliesForPeople(),
                Batteries().empty() ? "" : ": choose one with --device");
}

std::vector<Supply> Batteries() {
  std::vector<Supply> supplies = Supplies();
  std::erase_if(supplies, [](const Supply& supply) { return supply.Type() != "Battery"; });
  return supplies;
}

std::string SuppliesForPeople() {
  std::string list;
  for (const Supply& supply : Supplies()) {
    list += Concat(list.empty() ? "the supplies are " : ", ", supply.Name(), " (", supply.Type(),
                   supply.IsOfDevice() ? " of a device)" : ")");
  }
  return list.empty() ? Concat("there is no supply in ", SupplyClass) : list;
}

}  // namespace fuelgauge
