// SPDX-License-Identifier: MIT
#pragma once

#include <LifetimeData.hpp>
#include <array>
#include <cstdint>
#include <set>
#include <string>
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

  /// @return the number that @p text is, digits alone
  /// @throws UsageError when it is none, or one that the field does not allow
  int Parse(std::string_view text) const;
};

/// In the record's order.
extern const std::array<LifetimeField, 6> LifetimeFields;

/// Those of which one must not be above the other: the minimum first.
extern const std::array<std::pair<const LifetimeField*, const LifetimeField*>, 2> LifetimeRanges;

/// @throws UsageError when there is none of that name
const LifetimeField& FindField(std::string_view name);

/// Carries out one "FIELD=VALUE" on @p data.
/// @throws UsageError naming what is wrong; @p data is then unchanged
void Assign(dral::LifetimeData& data, std::string_view assignment);

/// @throws UsageError naming a minimum in @p data that is above its maximum, where one of the two is
///         among the @p named fields
void RefuseCrossed(const dral::LifetimeData& data, const std::set<std::string>& named);

}  // namespace fuelgauge
