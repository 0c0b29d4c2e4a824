// SPDX-License-Identifier: MIT
#include "readings/Reading.hpp"

#include <variant>

namespace fuelgauge {

std::optional<int> Reading::Number() const {
  if (!Succeeded()) {
    return std::nullopt;
  }
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? 1 : 0;
  }
  const int* number = std::get_if<int>(&value);
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

std::optional<std::string_view> Reading::Text() const {
  const std::string* text = std::get_if<std::string>(&value);
  return Succeeded() && text != nullptr ? std::optional<std::string_view>(*text) : std::nullopt;
}

const dral::LifetimeData* Reading::Record() const {
  return Succeeded() ? std::get_if<dral::LifetimeData>(&value) : nullptr;
}

std::string Reading::ForPeople() const {
  if (!Succeeded()) {
    return "-";
  }
  if (const auto text = Text()) {
    return std::string(*text);
  }
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? "yes" : "no";
  }
  const auto number = Number();
  return number ? fuelgauge::ForPeople(*number, property->unit) : "";
}

}  // namespace fuelgauge
