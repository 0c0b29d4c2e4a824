// SPDX-License-Identifier: MIT
#include "output/JsonSink.hpp"

#include <iostream>

#include "output/Json.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

void JsonSink::Sample(const std::string& time, const Readings& readings) {
  if (!readings.AnySucceeded()) {
    return;
  }
  Json line = {{"time", time}};
  for (const Reading& reading : readings) {
    if (reading.property->type != Type::Lifetime) {
      line[std::string(reading.property->name)] = ToJson(reading);
    }
  }
  std::cout << TerminalSafe(line.dump(-1, ' ', false, Json::error_handler_t::replace)) << "\n";
}

}  // namespace fuelgauge
