// SPDX-License-Identifier: MIT
#include "Writable.hpp"

#include <Path.hpp>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <locale>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "Log.hpp"

namespace dral {
namespace {

// What a value puts into the file. Not formatted by a stream, which would group digits as the
// global locale does.
const std::string& FileContents(const std::string& value) {
  return value;
}
std::string FileContents(int value) {
  return std::to_string(value);
}
std::string FileContents(unsigned int value) {
  return std::to_string(value);
}
std::string FileContents(bool value) {
  return value ? "1" : "0";
}
const LifetimeData& FileContents(const LifetimeData& value) {
  return value;
}

// Writes a value to the file in the form of its type.
struct WriteTo {
  const std::string& location;

  template <typename T>
  FuelGaugeStatus operator()(const T& value) const {
    // All memory is had before the file is opened, which empties it.
    const auto& contents = FileContents(value);
    constexpr bool Binary = std::is_same_v<T, LifetimeData>;
    char unused = 0;
    std::ofstream file;
    if (file.getloc() != std::locale::classic()) {  // the global locale may convert characters
      file.imbue(std::locale::classic());
    }
    file.rdbuf()->pubsetbuf(&unused, 1);  // the contents go out in one piece, as sysfs wants them
    file.open(location,
              std::ios::out | std::ios::trunc | (Binary ? std::ios::binary : std::ios::openmode{}));
    if (!file) {
      const int error = errno;
      KESP_LOG("Writable", LogFailure)
          << "Writable::Set failed to open file: " << location << "error: " << std::strerror(error);
      return FuelGaugeStatus::FileError;
    }
    file << contents;
    return FuelGaugeStatus::Success;
  }
};

}  // namespace

FuelGaugeStatus Writable::Set(PropertyValue value) const {
  return WriteData(true, std::move(value));
}

FuelGaugeStatus Writable::Reset() const {
  return WriteData(false, PropertyValue());
}

FuelGaugeStatus Writable::WriteData(bool useGivenValue, PropertyValue value) const {
  const auto entry = propertyMap.find(property);
  if (entry == propertyMap.end()) {
    KESP_LOG("Writable", LogFailure) << "Writable Missing FuelGaugeProperty definition: "
                                     << static_cast<std::uint32_t>(property);
    throw std::logic_error("Writable Missing FuelGaugeProperty definition");
  }
  const PropertyInfo& info = entry->second;
  if (!info.settable) {
    KESP_LOG("Writable", LogFailure)
        << "FuelGaugeProperty:" << static_cast<std::uint32_t>(property) << "not settable";
    return FuelGaugeStatus::Failure;
  }
  const std::unique_ptr<const PathIF> path =
      std::make_unique<Path>(info.location, std::unique_ptr<LinuxApiIF>());
  if (!path->Exists()) {
    KESP_LOG("Writable", LogFailure) << "Writable::Set failed - file not found: " << info.location;
    return FuelGaugeStatus::FileError;
  }
  return std::visit(WriteTo{info.location}, useGivenValue ? value : info.resetValue);
}

}  // namespace dral
