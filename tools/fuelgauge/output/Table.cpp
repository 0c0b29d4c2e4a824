// SPDX-License-Identifier: MIT
#include "output/Table.hpp"

#include <algorithm>
#include <iostream>

#include "output/Text.hpp"
#include "readings/LifetimeField.hpp"
#include "readings/Units.hpp"

namespace fuelgauge {

std::string PadTo(std::size_t width, std::string text) {
  const auto continues = [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
  };
  const auto hidden = std::count_if(text.begin(), text.end(), continues);
  const std::size_t characters = text.size() - static_cast<std::size_t>(hidden);
  return text.append(width - std::min(width, characters), ' ');
}

std::string Row(std::string_view name, std::string_view value, std::string_view remark) {
  std::string row = PadTo(26, std::string(name)).append(PadTo(20, TerminalSafe(value)));
  row.append(TerminalSafe(remark));
  row.erase(row.find_last_not_of(' ') + 1);
  return row;
}

void PrintRow(std::string_view name, std::string_view value, std::string_view remark) {
  std::cout << Row(name, value, remark) << "\n";
}

void PrintFields(const dral::LifetimeData& data) {
  for (const LifetimeField& field : LifetimeFields) {
    const int value = field.Value(data);
    PrintRow("  " + std::string(field.name), ForPeople(value, field.unit), Raw(value, field.unit));
  }
}

}  // namespace fuelgauge
