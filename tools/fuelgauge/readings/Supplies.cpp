// SPDX-License-Identifier: MIT
#include "readings/Supplies.hpp"

#include <glob.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <filesystem>
#include <memory>
#include <string_view>

#include "readings/RegularFile.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {
namespace {

struct Supply {
  std::string name;
  std::string type;  // such as "Battery", "Mains" or "USB"
};

bool Exists(const std::string& path) {
  return ::access(path.c_str(), F_OK) == 0;
}

// Those that are there now, in the order of their names.
std::vector<Supply> Supplies() {
  glob_t folders{};
  const std::unique_ptr<glob_t, void (*)(glob_t*)> guard(&folders, ::globfree);
  ::glob((std::string(SupplyClass) + "/*").c_str(), 0, nullptr, &folders);
  std::vector<Supply> supplies;
  for (std::size_t i = 0; i < folders.gl_pathc; ++i) {
    const std::string folder = folders.gl_pathv[i];
    supplies.push_back({SupplyName(folder), SupplyType(folder)});
  }
  return supplies;
}

}  // namespace

std::vector<std::string> Batteries() {
  std::vector<std::string> names;
  for (const auto& [name, type] : Supplies()) {
    if (type == "Battery") {
      names.push_back(name);
    }
  }
  return names;
}

std::string SuppliesForPeople() {
  std::string list;
  for (const auto& [name, type] : Supplies()) {
    list.append(list.empty() ? "the supplies are " : ", ").append(name);
    list.append(" (").append(type).append(")");
  }
  return list.empty() ? std::string("there is no supply in ").append(SupplyClass) : list;
}

std::string SupplyFolder(const std::string& device) {
  const bool isPath = device == "." || device == ".." || device.find('/') != std::string::npos;
  return isPath ? device : std::string(SupplyClass).append("/").append(device);
}

std::string SupplyType(const std::string& folder) {
  try {
    const std::string text = ContentsOf(folder + "/type");
    return text.substr(0, text.find('\n'));
  } catch (const UsageError&) {
    return "";  // a supply that is going, or a folder that is none
  }
}

std::string SupplyName(const std::string& folder) {
  const auto path = (std::filesystem::absolute(folder) / "").lexically_normal();
  return path.parent_path().filename();
}

// A vendor's driver for one of these gauges has a name like the kernel's, bq27xxx-battery. A gauge on a
// single wire has the driver of all that is on such wires; there the supply's own name tells.
bool HasOtherDriver(const std::string& folder) {
  std::array<char, PATH_MAX> link{};
  const auto length = ::readlink((folder + "/device/driver").c_str(), link.data(), link.size());
  if (length <= 0) {
    return false;
  }
  std::string_view driver(link.data(), static_cast<std::size_t>(length));
  driver.remove_prefix(driver.rfind('/') + 1);
  return !driver.starts_with("bq27") &&
         !(driver == "w1_slave_driver" && SupplyName(folder).starts_with("bq27"));
}

bool CountsEnergy(const std::string& folder) {
  return Exists(folder + "/energy_now") && !Exists(folder + "/charge_now");
}

}  // namespace fuelgauge
