// SPDX-License-Identifier: MIT
#pragma once

#include "FuelGaugeProperty.hpp"
#include "FuelGaugeStatus.hpp"
#include "KespExport.hpp"
#include "PropertyInfo.hpp"
#include "PropertyValue.hpp"

namespace dral {

/// Writes one property's file. Lives for one call; its owner serialises calls.
class KESP_EXPORT Writable {
 public:
  /// @param propertyMap must outlive this object
  Writable(const FuelGaugeProperty& property, const PropertyMap& propertyMap)
      : property(property), propertyMap(propertyMap) {}

  /// Writes @p value; returns what `WriteData` does.
  FuelGaugeStatus Set(PropertyValue value) const;

  /// Writes the property's reset value; returns what `WriteData` does.
  FuelGaugeStatus Reset() const;

  /// Writes @p value, or the property's reset value when @p useGivenValue is false. A file that
  /// does not exist is not created.
  /// @return Success once the file was open, whatever happened to the bytes; Failure when the
  ///         property is not settable; FileError when the file is missing or cannot be opened
  /// @throws std::logic_error when the map lacks the property
  FuelGaugeStatus WriteData(bool useGivenValue, PropertyValue value) const;

 private:
  FuelGaugeProperty property;
  const PropertyMap& propertyMap;
};

}  // namespace dral
