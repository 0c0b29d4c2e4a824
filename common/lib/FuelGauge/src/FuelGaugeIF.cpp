// SPDX-License-Identifier: MIT
#include "FuelGaugeIF.hpp"

namespace dral {

/// Empty: room for state that must not change the size of an implementation.
class FuelGaugeIF::Impl {};

FuelGaugeIF::FuelGaugeIF() : impl(std::make_unique<Impl>()) {}

FuelGaugeIF::~FuelGaugeIF() = default;

FuelGaugeStatus FuelGaugeIF::Set(FuelGaugeProperty property, PropertyValue value) {
  return DoSet(property, std::move(value));
}

FuelGaugeStatus FuelGaugeIF::Reset(FuelGaugeProperty property) {
  return DoReset(property);
}

}  // namespace dral
