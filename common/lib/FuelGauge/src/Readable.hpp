// SPDX-License-Identifier: MIT
#pragma once

#include <cerrno>
#include <cstring>
#include <fstream>
#include <locale>
#include <string>
#include <utility>

#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"
#include "KespExport.hpp"
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

  /// @return the record that `T`'s stream extraction finds in the file at @p path; FileError and a
  ///         default record; NoData and what came before the end or the error
  template <typename T>
  static std::pair<FuelGaugeStatus, T> GetBinaryFileContents(const std::string& path);

 private:
  FuelGaugeProperty property;
  const PropertyMap& propertyMap;
};

template <typename T>
std::pair<FuelGaugeStatus, T> Readable::GetBinaryFileContents(const std::string& path) {
  T record{};
  char unused = 0;
  std::ifstream file;
  if (file.getloc() != std::locale::classic()) {  // the global locale may convert characters
    file.imbue(std::locale::classic());
  }
  file.rdbuf()->pubsetbuf(&unused, 1);  // no buffer, so that nothing past the record is read
  file.open(path, std::ios::in | std::ios::binary);
  if (!file) {
    const int error = errno;
    KESP_LOG("Readable", LogFailure)
        << "Readable::GetBinaryFileContents failed to open file: " << path
        << "error: " << std::strerror(error);
    return {FuelGaugeStatus::FileError, record};
  }
  file >> record;
  if (!file) {
    KESP_LOG("Readable", LogFailure) << "Bad or no data encountered in file:" << path;
    return {FuelGaugeStatus::NoData, record};
  }
  return {FuelGaugeStatus::Success, record};
}

}  // namespace dral
