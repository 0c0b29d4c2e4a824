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
  return "dral::LifetimeData:    maxTemp=" + std::to_string(maxTemp) +
         " , minTemp=" + std::to_string(minTemp) +
         " , maxPackVoltage=" + std::to_string(maxPackVoltage) +
         " , minPackVoltage=" + std::to_string(minPackVoltage) +
         " , maxChargeCurrent=" + std::to_string(maxChargeCurrent) +
         " , maxDischargeCurrent=" + std::to_string(maxDischargeCurrent) + "\n";
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
