// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>

#include <cstring>
#include <string>
#include <utility>

#include "File.hpp"
#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"
#include "KespExport.hpp"
#include "LifetimeDataBytes.hpp"
#include "Log.hpp"
#include "PropertyInfo.hpp"
#include "PropertyValue.hpp"

namespace dral {

/// Reads one property from its file. Lives for one call; its owner serialises calls.
class KESP_EXPORT Readable {
 public:
  /// @param propertyMap must outlive this object
  Readable(const FuelGaugeProperty& property, const PropertyMap& propertyMap)
      : property(property), propertyMap(propertyMap) {}

  /// Reads the property as the alternative that @p hint holds.
  /// @throws std::logic_error when the map lacks the property or its location
  /// @throws std::invalid_argument, std::out_of_range when the text is not a number that fits
  std::pair<FuelGaugeStatus, PropertyValue> Get(PropertyValue hint) const;

  /// @return the whole text of the file at @p path; FileError or NoData and no text
  static std::pair<FuelGaugeStatus, std::string> GetTextFileContents(const std::string& path);

  /// @tparam T a type with `Encode` and `Decode`, such as `LifetimeDataBytes.hpp` has for its record
  /// @return the record in the file at @p path; FileError and a default record; NoData and a default
  ///         record whose first bytes are those read before the end or the error
  template <typename T>
  static std::pair<FuelGaugeStatus, T> GetBinaryFileContents(const std::string& path);

 private:
  FuelGaugeProperty property;
  const PropertyMap& propertyMap;
};

template <typename T>
std::pair<FuelGaugeStatus, T> Readable::GetBinaryFileContents(const std::string& path) {
  T record{};
  File file(path, O_RDONLY);
  if (file.Error() != 0) {
    KESP_LOG("Readable", LogFailure)
        << "Readable::GetBinaryFileContents failed to open file: " << path
        << "error: " << std::strerror(file.Error());
    return {FuelGaugeStatus::FileError, record};
  }
  auto bytes = Encode(record);
  const bool whole = file.Read(bytes) == bytes.size();
  Decode(bytes, record);
  if (!whole) {
    KESP_LOG("Readable", LogFailure) << "Bad or no data encountered in file:" << path;
  }
  return {whole ? FuelGaugeStatus::Success : FuelGaugeStatus::NoData, record};
}

}  // namespace dral
