// SPDX-License-Identifier: MIT
#include "Writable.hpp"

#include <fcntl.h>

#include <Path.hpp>
#include <cerrno>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "File.hpp"
#include "LifetimeDataBytes.hpp"
#include "Log.hpp"

namespace dral {
namespace {

// Writes a value to the file in the form of its type. The contents are made before the file is opened,
// which empties it.
struct WriteTo {
  const std::string& location;

  FuelGaugeStatus operator()(std::string_view contents) const {
    File file(location, O_WRONLY | O_TRUNC);
    if (file.Error() != 0) {
      KESP_LOG("Writable", LogFailure) << "Writable::Set failed to open file: " << location
                                       << "error: " << std::strerror(file.Error());
      return FuelGaugeStatus::FileError;
    }
    file.Write(contents);
    return FuelGaugeStatus::Success;
  }

  // A number, or a flag as 1 or 0; a stream would group digits as the global locale does.
  template <std::integral T>
  FuelGaugeStatus operator()(T value) const {
    return (*this)(std::to_string(value));
  }

  FuelGaugeStatus operator()(const LifetimeData& value) const {
    const auto bytes = Encode(value);
    return (*this)(std::string_view(bytes.data(), bytes.size()));
  }
};

// Whether there is a file; if not, errno says why. A platform's own library need not leave the error of its
// stat(2).
bool Exists(const std::string& location) {
  std::unique_ptr<const PathIF> path = std::make_unique<Path>(location, nullptr);
  errno = 0;
  const bool exists = path->Exists();
  const int error = errno != 0 ? errno : ENOENT;
  path.reset();
  errno = exists ? 0 : error;
  return exists;
}

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
  if (!Exists(info.location)) {
    KESP_LOG("Writable", LogFailure) << "Writable::Set failed - file not found: " << info.location;
    return FuelGaugeStatus::FileError;
  }
  return std::visit(WriteTo{info.location}, useGivenValue ? value : info.resetValue);
}

}  // namespace dral
