// SPDX-License-Identifier: MIT
#include "LifetimeData.hpp"

#include <istream>
#include <ostream>
#include <string_view>
#include <type_traits>
#include <variant>

#include "LifetimeDataBytes.hpp"
#include "LifetimeFields.hpp"
#include "Log.hpp"

namespace dral {

void LifetimeData::Validate() {
  for (const LifetimeField& field : LifetimeFields) {
    std::visit(
        [this, &field](auto member) {
          auto& value = this->*member;
          if (value < field.least || value > field.most) {
            value = static_cast<std::remove_reference_t<decltype(value)>>(field.defaultValue);
            KESP_LOG("LifetimeData", LogRepair)
                << "LifetimeData::Validate() setting name: " << field.name
                << " to default = " << field.defaultValue;
          }
        },
        field.member);
  }
}

std::string LifetimeData::ToString() const {
  // Not a string stream, which would group digits as the global locale does.
  std::string text = "dral::LifetimeData: ";
  std::string_view before = "   ";
  for (const LifetimeField& field : LifetimeFields) {
    const int value = std::visit([this](auto member) { return int{this->*member}; }, field.member);
    text.append(before).append(field.name).append("=").append(std::to_string(value));
    before = " , ";
  }
  return text.append("\n");
}

std::ostream& operator<<(std::ostream& os, const LifetimeData& data) {
  const auto bytes = Encode(data);
  return os.write(bytes.data(), bytes.size());
}

std::istream& operator>>(std::istream& is, LifetimeData& data) {
  // Starting from the old bytes keeps those that a short read does not replace.
  auto bytes = Encode(data);
  try {
    is.read(bytes.data(), bytes.size());
  } catch (...) {  // a stream that was told to throw
    Decode(bytes, data);
    throw;
  }
  Decode(bytes, data);
  return is;
}

}  // namespace dral
