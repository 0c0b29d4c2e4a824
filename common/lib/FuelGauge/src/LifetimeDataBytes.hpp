// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <utility>

#include "LifetimeData.hpp"

namespace dral {

/// A record as its file holds it: the fields in order, little-endian, then the reserved bytes. A
/// little-endian host has the same bytes in memory.
using LifetimeDataBytes = std::array<char, 32>;

/// From a host's byte order to the file's, or back.
inline LifetimeDataBytes Reordered(LifetimeDataBytes bytes) {
  if constexpr (std::endian::native == std::endian::big) {
    for (std::size_t field = 0; field < offsetof(LifetimeData, reserved); field += 2) {
      std::swap(bytes[field], bytes[field + 1]);
    }
  }
  return bytes;
}

inline LifetimeDataBytes Encode(const LifetimeData& data) {
  return Reordered(std::bit_cast<LifetimeDataBytes>(data));
}

inline void Decode(const LifetimeDataBytes& bytes, LifetimeData& data) {
  data = std::bit_cast<LifetimeData>(Reordered(bytes));
}

}  // namespace dral
