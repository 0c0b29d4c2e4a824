// SPDX-License-Identifier: MIT
#include "readings/Property.hpp"

#include <string>
#include <utility>

#include "readings/UsageError.hpp"

namespace fuelgauge {

dral::PropertyValue Hint(Type type) {
  using dral::PropertyValue;
  switch (type) {
    case Type::Int:
      return PropertyValue(std::in_place_type<int>);
    case Type::Uint:
      return PropertyValue(std::in_place_type<unsigned int>);
    case Type::Bool:
      return PropertyValue(std::in_place_type<bool>);
    case Type::Lifetime:
      return PropertyValue(std::in_place_type<dral::LifetimeData>);
    default:
      return PropertyValue(std::in_place_type<std::string>);
  }
}

const Property& FindProperty(std::string_view name) {
  const auto id = dral::PropertyNamed(name);
  if (!id) {
    throw UsageError("no property named '" + std::string(name) +
                     "'; 'fuelgauge get --help' lists them");
  }
  return Properties.at(static_cast<std::size_t>(*id));
}

}  // namespace fuelgauge
