// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "LifetimeData.hpp"

namespace dral {

/// One of the fields that the record's text, its validation and its override file name.
struct LifetimeField {
  std::string_view name;
  std::variant<std::int16_t LifetimeData::*, std::uint16_t LifetimeData::*> member;
  int least;
  int most;
  int defaultValue;
};

/// In the record's order. Of a pack voltage the top bit must be clear: no pack has 32.8 V.
inline constexpr std::array<LifetimeField, 6> LifetimeFields = {{
    {"maxTemp", &LifetimeData::maxTemp, LifetimeData::LifetimeMinTemp,
     LifetimeData::LifetimeMaxTemp, LifetimeData::DefaultResetMaxTemp},
    {"minTemp", &LifetimeData::minTemp, LifetimeData::LifetimeMinTemp,
     LifetimeData::LifetimeMaxTemp, LifetimeData::DefaultResetMinTemp},
    {"maxPackVoltage", &LifetimeData::maxPackVoltage, 0, 0x7FFF,
     LifetimeData::DefaultResetMaxPackVoltage},
    {"minPackVoltage", &LifetimeData::minPackVoltage, 0, 0x7FFF,
     LifetimeData::DefaultResetMinPackVoltage},
    {"maxChargeCurrent", &LifetimeData::maxChargeCurrent, LifetimeData::LifetimeMinCurrent,
     LifetimeData::LifetimeMaxCurrent, LifetimeData::DefaultResetMaxChargeCurrent},
    {"maxDischargeCurrent", &LifetimeData::maxDischargeCurrent, LifetimeData::LifetimeMinCurrent,
     LifetimeData::LifetimeMaxCurrent, LifetimeData::DefaultResetMaxDischargeCurrent},
}};

}  // namespace dral
