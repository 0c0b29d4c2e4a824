// SPDX-License-Identifier: MIT
#include "gauge/Supply.hpp"

#include <glob.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <memory>
#include <string_view>

#include "gauge/Chips.hpp"
#include "gauge/Concat.hpp"
#include "gauge/RegularFile.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

bool Exists(const std::string& path) {
  return ::access(path.c_str(), F_OK) == 0;
}

// Those that the kernel has now, in the order of their names.
std::vector<Supply> Supplies() {
  glob_t folders{};
  const std::unique_ptr<glob_t, void (*)(glob_t*)> guard(&folders, ::globfree);
  ::glob(Concat(SupplyClass, "/*").c_str(), 0, nullptr, &folders);
  return {folders.gl_pathv, folders.gl_pathv + folders.gl_pathc};
}

// Empty when it cannot be read: a supply that is going, or a folder that is none.
std::string FirstLine(const std::string& path) {
  try {
    const std::string text = ContentsOf(path);
    return text.substr(0, text.find('\n'));
  } catch (const UsageError&) {
    return "";
  }
}

bool IsPath(const std::string& device) {
  return device == "." || device == ".." || device.find('/') != std::string::npos;
}

}  // namespace

Supply::Supply(const std::string& device)
    : named(!IsPath(device)), folder(named ? Concat(SupplyClass, "/", device) : device) {}

std::string Supply::Name() const {
  const auto path = (std::filesystem::absolute(folder) / "").lexically_normal();
  return path.parent_path().filename();
}

std::string Supply::Type() const {
  return FirstLine(folder + "/type");
}

bool Supply::IsOfDevice() const {
  return FirstLine(folder + "/scope") == "Device";
}

// A vendor's driver for one of these gauges has a name like the kernel's, bq27xxx-battery. A gauge on a
// single wire has the driver of all that is on such wires; there the supply's own name tells.
bool Supply::HasOtherDriver() const {
  std::array<char, PATH_MAX> link{};
  const auto length = ::readlink((folder + "/device/driver").c_str(), link.data(), link.size());
  if (length <= 0) {
    return false;
  }
  std::string_view driver(link.data(), static_cast<std::size_t>(length));
  driver.remove_prefix(driver.rfind('/') + 1);
  return !driver.starts_with("bq27") &&
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
