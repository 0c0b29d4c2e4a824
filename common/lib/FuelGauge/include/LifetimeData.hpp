// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "KespExport.hpp"

namespace dral {

/// The extremes that the gauge has recorded over the life of its battery pack.
///
/// A plain value in the gauge's own units, never converted: temperatures in 0.1 °C, pack voltages
/// in mV, currents in mA. A reset writes a default-constructed record, unless an override file
/// changes it.
struct KESP_EXPORT LifetimeData {
  static constexpr std::int16_t LifetimeMinTemp = -600;      ///< lowest valid temperature
  static constexpr std::int16_t LifetimeMaxTemp = 1400;      ///< highest valid temperature
  static constexpr std::int16_t DefaultResetMaxTemp = 600;   ///< default of `maxTemp`
  static constexpr std::int16_t DefaultResetMinTemp = -200;  ///< default of `minTemp`
  static constexpr std::uint16_t DefaultResetMaxPackVoltage =
      4450;  ///< default of `maxPackVoltage`
  static constexpr std::uint16_t DefaultResetMinPackVoltage =
      2500;                                                   ///< default of `minPackVoltage`
  static constexpr std::int16_t LifetimeMinCurrent = -32767;  ///< lowest valid current
  static constexpr std::int16_t LifetimeMaxCurrent = 32767;   ///< highest valid current
  static constexpr std::int16_t DefaultResetMaxChargeCurrent =
      3000;  ///< default of `maxChargeCurrent`
  static constexpr std::int16_t DefaultResetMaxDischargeCurrent =
      -1500;  ///< default of `maxDischargeCurrent`

  std::int16_t maxTemp = DefaultResetMaxTemp;                    ///< 0.1 °C
  std::int16_t minTemp = DefaultResetMinTemp;                    ///< 0.1 °C
  std::uint16_t maxPackVoltage = DefaultResetMaxPackVoltage;     ///< mV
  std::uint16_t minPackVoltage = DefaultResetMinPackVoltage;     ///< mV
  std::int16_t maxChargeCurrent = DefaultResetMaxChargeCurrent;  ///< mA
  std::int16_t maxDischargeCurrent =
      DefaultResetMaxDischargeCurrent;      ///< mA, by convention negative
  std::array<std::uint8_t, 20> reserved{};  ///< the gauge's own; passed through unchanged

  /// Sets each field outside its limits to its default and logs that at level 6. Limits:
  /// temperatures `LifetimeMinTemp` to `LifetimeMaxTemp`, pack voltages up to 32767, currents
  /// `LifetimeMinCurrent` to `LifetimeMaxCurrent`. Fields are not compared with one another.
  void Validate();

  /// @return the six fields in one line of text, newline included, for display and logging
  std::string ToString() const;
};

/// Writes the 32-byte binary form: the fields in order, little-endian on every host, then the
/// reserved bytes. The stream's state tells whether it took the bytes.
KESP_EXPORT std::ostream& operator<<(std::ostream& os, const LifetimeData& data);

/// Reads the 32-byte binary form, neither validated nor converted. When the stream ends early, the
/// bytes read replace the first ones of @p data, and the stream's state says so.
KESP_EXPORT std::istream& operator>>(std::istream& is, LifetimeData& data);

}  // namespace dral
