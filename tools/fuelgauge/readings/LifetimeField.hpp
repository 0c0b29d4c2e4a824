// SPDX-License-Identifier: MIT
#pragma once

#include <LifetimeData.hpp>
#include <array>
#include <cstdint>
#include <string_view>
#include <variant>

#include "readings/Units.hpp"

namespace fuelgauge {

/// One of the six fields of the lifetime record.
struct LifetimeField {
  std::string_view name;
  Unit unit;
  std::variant<std::int16_t dral::LifetimeData::*, std::uint16_t dral::LifetimeData::*> member;

  int Value(const dral::LifetimeData& data) const;
};

/// In the record's order.
extern const std::array<LifetimeField, 6> LifetimeFields;

/// Carries out one "FIELD=VALUE" on @p data.
/// @throws UsageError naming what is wrong; @p data is then unchanged
void Assign(dral::LifetimeData& data, std::string_view assignment);

}  // namespace fuelgauge
