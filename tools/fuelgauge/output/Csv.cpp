// SPDX-License-Identifier: MIT
#include "output/Csv.hpp"

#include <iostream>

namespace fuelgauge {

std::string CsvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    return std::string(text);
  }
  std::string field = "\"";
  for (const char byte : text) {
    field.append(byte == '"' ? 2 : 1, byte);
  }
  return field.append("\"");
}

void PrintCsvHeader() {
  std::cout << "time";
  for (const Property& property : Properties) {
    if (property.type != Type::Lifetime) {
      std::cout << "," << property.name;
    }
  }
  std::cout << "\n";
}

void PrintCsvLine(const std::string& time, const Readings& readings) {
  std::cout << time;
  for (const Reading& reading : readings) {
    if (reading.property->type == Type::Lifetime) {
      continue;
    }
    std::cout << ",";
    if (const auto number = reading.Number()) {
      std::cout << *number;
    } else if (const auto text = reading.Text()) {
      std::cout << CsvField(*text);
    }
  }
  std::cout << "\n";
}

}  // namespace fuelgauge
