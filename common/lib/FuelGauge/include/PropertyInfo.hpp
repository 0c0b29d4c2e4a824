// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <string>
#include <unordered_map>

#include "FuelGaugeProperty.hpp"
#include "KespExport.hpp"
#include "PropertyValue.hpp"

namespace dral {

/// Describes one property: its file, and whether it can be written.
struct PropertyInfo {
  std::string propertyName;  ///< display name
  bool settable = false;     ///< may be written, and may be reset
  bool resettable = false;   ///< shown in the dump only: `settable` governs resets
  std::string location;  ///< absolute path of the sysfs attribute; empty: the property has no file
  PropertyValue resetValue{};  ///< what a reset writes
  bool binary = false;         ///< shown in the dump only: the file holds a record, not text
};

/// The properties that a gauge offers, each with its descriptor.
using PropertyMap = std::unordered_map<FuelGaugeProperty, PropertyInfo>;

/// Writes the descriptor as one line of text and flushes the stream.
/// @throws std::bad_variant_access when a descriptor that is not binary holds no string as its
///         reset value; the text before it has then been written
KESP_EXPORT std::ostream& operator<<(std::ostream& os, const PropertyInfo& info);

/// Reads the six fields in order, each as one word: name, flag, flag, location, reset text, flag.
/// It cannot read what `operator<<` writes. The stream's state tells whether all were read;
/// fields read before a failure keep their new values.
/// @throws std::bad_variant_access when `info.resetValue` holds no string, after four fields
KESP_EXPORT std::istream& operator>>(std::istream& is, PropertyInfo& info);

}  // namespace dral
