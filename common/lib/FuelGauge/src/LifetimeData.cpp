// SPDX-License-Identifier: MIT
#include "LifetimeData.hpp"

#include <istream>
#include <ostream>
#include <string_view>

#include "LifetimeDataBytes.hpp"
#include "Log.hpp"

namespace dral {

void LifetimeData::Validate() {
  const auto repair = [](auto& field, bool valid, auto defaultValue, std::string_view name) {
    if (!valid) {
      field = defaultValue;
      KESP_LOG("LifetimeData", LogRepair)
          << "LifetimeData::Validate() setting name: " << name << " to default = " << defaultValue;
    }
  };
  const auto temperature = [](std::int16_t value) {
    return LifetimeMinTemp <= value && value <= LifetimeMaxTemp;
  };
  // The top bit must be clear: no pack has 32.8 V.
  const auto packVoltage = [](std::uint16_t value) { return value <= 0x7FFFU; };
  const auto current = [](std::int16_t value) {
    return LifetimeMinCurrent <= value && value <= LifetimeMaxCurrent;
  };

  repair(maxTemp, temperature(maxTemp), DefaultResetMaxTemp, "maxTemp");
  repair(minTemp, temperature(minTemp), DefaultResetMinTemp, "minTemp");
  repair(maxPackVoltage, packVoltage(maxPackVoltage), DefaultResetMaxPackVoltage, "maxPackVoltage");
  repair(minPackVoltage, packVoltage(minPackVoltage), DefaultResetMinPackVoltage, "minPackVoltage");
  repair(maxChargeCurrent, current(maxChargeCurrent), DefaultResetMaxChargeCurrent,
         "maxChargeCurrent");
  repair(maxDischargeCurrent, current(maxDischargeCurrent), DefaultResetMaxDischargeCurrent,
         "maxDischargeCurrent");
}

std::string LifetimeData::ToString() const {
  // Not a string stream, which would group digits as the global locale does.
  std::string text;
  const auto add = [&text](const char* name, int value) {
    text.append(name).append(std::to_string(value));
  };
  add("dral::LifetimeData:    maxTemp=", maxTemp);
  add(" , minTemp=", minTemp);
  add(" , maxPackVoltage=", maxPackVoltage);
  add(" , minPackVoltage=", minPackVoltage);
  add(" , maxChargeCurrent=", maxChargeCurrent);
  add(" , maxDischargeCurrent=", maxDischargeCurrent);
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
