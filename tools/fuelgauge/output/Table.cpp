// SPDX-License-Identifier: MIT
#include "output/Table.hpp"

#include <algorithm>
#include <iostream>

#include "gauge/Concat.hpp"
#include "gauge/LifetimeField.hpp"
#include "gauge/Units.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

std::string PadTo(std::size_t width, std::string text) {
  return text.append(width - std::min(width, Columns(text)), ' ');
}

std::string Row(std::string_view name, std::string_view value, std::string_view remark) {
  // A long name or value still ends with a blank.
  std::string row = Concat(PadTo(NameColumns - 1, std::string(name)), " ",
                           PadTo(ValueColumns - 1, TerminalSafe(value)), " ", TerminalSafe(remark));
  row.erase(row.find_last_not_of(' ') + 1);
  return row;
}

void PrintRow(std::string_view name, std::string_view value, std::string_view remark) {
  std::cout << Row(name, value, remark) << "\n";
}

void PrintFields(const dral::LifetimeData& data) {
  for (const LifetimeField& field : LifetimeFields) {
    const int value = field.Value(data);
    PrintRow("  " + std::string(field.name), ForPeople(value, field.quantity.unit),
             Raw(value, field.quantity.unit));
  }
}

}  // namespace fuelgauge
