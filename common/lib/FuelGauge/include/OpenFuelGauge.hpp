// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string_view>

#include "FuelGaugeIF.hpp"

namespace dral {

/// Opens the device's gauge, which the factory builds as "DefaultIF". Who calls the factory has to name its
/// argument list: one that the compiler deduces, from a literal or a `std::string`, has an empty registry, and
/// throws.
/// @param lifetimeFile the path of a lifetime override file (see `LifetimeDataParser`); empty for none
/// @throws std::invalid_argument, std::out_of_range when a field's value in that file is no number or
///         too large
/// @throws std::bad_alloc
inline std::unique_ptr<FuelGaugeIF> OpenFuelGauge(std::string_view lifetimeFile = {}) {
  return InterfaceFactory::Create<FuelGaugeIF, std::string_view>("DefaultIF", lifetimeFile);
}

}  // namespace dral
