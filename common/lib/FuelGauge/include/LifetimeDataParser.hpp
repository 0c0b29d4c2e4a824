// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <unordered_map>

#include "KespExport.hpp"
#include "LifetimeData.hpp"

namespace dral {

/// Reads a lifetime override file: words in pairs, a field's name and its number, separated by any
/// white space.
///
///     maxTemp 550
///     minTemp -100
///
/// There are no comments and no quotes. If a name appears twice, the first one wins; unknown names
/// are ignored, and fields that are not named keep their value. Numbers are decimal and in the units
/// of `LifetimeData`; anything after the digits is ignored, and only the low 16 bits are used.
///
/// A parser belongs to one thread; several may work at once.
class KESP_EXPORT LifetimeDataParser {
 public:
  /// One entry of the file, read by its `operator>>`.
  struct kv_pair {
    std::string key;    ///< a field's name
    std::string value;  ///< its number, as text
  };

  /// Converts a value's text and stores it in its field of the record.
  using Setter = std::function<void(std::string, LifetimeData&)>;

  /// The six names that a file may set. Never changed once the library is loaded.
  static const std::unordered_map<std::string, Setter> mapping;

  /// Reads the file at @p path over a copy of @p defaults and validates the result. A file that
  /// cannot be opened is logged, and the result is @p defaults, validated.
  /// @throws std::invalid_argument when a field's value is not a number
  /// @throws std::out_of_range when it is beyond 32 bits (pack voltages: 64 bits)
  LifetimeDataParser(std::string_view path, const LifetimeData& defaults);

  /// @return the resulting record
  const LifetimeData& GetLifetimeData() const { return lifetimeData; }

 private:
  LifetimeData lifetimeData;
};

/// Reads a key and then its value, each as one word; the stream's state tells whether both came.
KESP_EXPORT std::istream& operator>>(std::istream& is, LifetimeDataParser::kv_pair& pair);

}  // namespace dral
