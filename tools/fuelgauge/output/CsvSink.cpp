// SPDX-License-Identifier: MIT
#include "output/CsvSink.hpp"

#include <iostream>
#include <variant>

#include "output/Text.hpp"

namespace fuelgauge {

std::string CsvField(std::string_view text) {
  std::string safe = TerminalSafe(text);
  if (safe.find_first_of(",\"") == std::string::npos) {
    return safe;
  }
  std::string field = "\"";
  for (const char byte : safe) {
    field.append(byte == '"' ? 2 : 1, byte);
  }
  return field.append("\"");
}

void CsvSink::Begin() {
  std::cout << "time";
  for (const Property& property : Properties) {
    if (property.type != Type::Lifetime) {
      std::cout << "," << property.name;
    }
  }
  std::cout << "\n" << std::flush;
}

void CsvSink::Sample(const std::string& time, const Readings& readings) {
  if (!readings.AnySucceeded()) {
    return;
  }
  std::cout << time;
  for (const Reading& reading : readings) {
    if (reading.property->type == Type::Lifetime) {
      continue;
    }
    std::cout << ",";
    if (const bool* flag = std::get_if<bool>(&reading.value)) {
      std::cout << (!reading.Succeeded() ? "" : *flag ? "true" : "false");
    } else if (const auto number = reading.Number()) {
      std::cout << *number;
    } else if (const auto text = reading.Text()) {
      std::cout << CsvField(*text);
    }
  }
  std::cout << "\n";
}

}  // namespace fuelgauge
