// SPDX-License-Identifier: MIT
#pragma once

#include <LifetimeData.hpp>
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>

#include "gauge/Property.hpp"

namespace fuelgauge {

/// What the fields of the lifetime record are extremes of.
struct LifetimeQuantity {
  Unit unit;
  int least;  ///< what a record may hold, by the library's `LifetimeData::Validate`
  int most;
  Metric metric;
};

/// One of the six fields of the lifetime record.
struct LifetimeField {
  std::string_view name;
  std::variant<std::int16_t dral::LifetimeData::*, std::uint16_t dral::LifetimeData::*> member;
  LifetimeQuantity quantity;
  std::string_view extreme;  ///< the metric's label

  int Value(const dral::LifetimeData& data) const;
  void Store(dral::LifetimeData& data, int value) const;
  bool Allows(int value) const { return quantity.least <= value && value <= quantity.most; }
};

/// In the record's order.
extern const std::array<LifetimeField, 6> LifetimeFields;

/// Those of which one must not be above the other: the minimum first.
extern const std::array<std::pair<const LifetimeField*, const LifetimeField*>, 2> LifetimeRanges;

}  // namespace fuelgauge
