// SPDX-License-Identifier: MIT
#include "LifetimeData.hpp"

#include <algorithm>
#include <istream>
#include <ostream>
#include <string_view>

#include "Log.hpp"

namespace dral {
namespace {

using Bytes = std::array<char, 32>;
constexpr std::size_t ReservedOffset = 12;

static_assert(sizeof(LifetimeData) == Bytes{}.size());

// Two bytes, the low one first, whatever the host's own order is.
void Put(Bytes& bytes, std::size_t offset, std::uint16_t value) {
  bytes[offset] = static_cast<char>(value & 0xFFU);
  bytes[offset + 1] = static_cast<char>(value >> 8U);
}

std::uint16_t Take(const Bytes& bytes, std::size_t offset) {
  const unsigned low = static_cast<unsigned char>(bytes[offset]);
  const unsigned high = static_cast<unsigned char>(bytes[offset + 1]);
  return static_cast<std::uint16_t>(low | high << 8U);
}

Bytes Encode(const LifetimeData& data) {
  Bytes bytes{};
  Put(bytes, 0, static_cast<std::uint16_t>(data.maxTemp));
  Put(bytes, 2, static_cast<std::uint16_t>(data.minTemp));
  Put(bytes, 4, data.maxPackVoltage);
  Put(bytes, 6, data.minPackVoltage);
  Put(bytes, 8, static_cast<std::uint16_t>(data.maxChargeCurrent));
  Put(bytes, 10, static_cast<std::uint16_t>(data.maxDischargeCurrent));
  std::copy(data.reserved.begin(), data.reserved.end(), bytes.begin() + ReservedOffset);
  return bytes;
}

LifetimeData Decode(const Bytes& bytes) {
  LifetimeData data;
  data.maxTemp = static_cast<std::int16_t>(Take(bytes, 0));
  data.minTemp = static_cast<std::int16_t>(Take(bytes, 2));
  data.maxPackVoltage = Take(bytes, 4);
  data.minPackVoltage = Take(bytes, 6);
  data.maxChargeCurrent = static_cast<std::int16_t>(Take(bytes, 8));
  data.maxDischargeCurrent = static_cast<std::int16_t>(Take(bytes, 10));
  std::copy(bytes.begin() + ReservedOffset, bytes.end(), data.reserved.begin());
  return data;
}

}  // namespace

void LifetimeData::Validate() {
  const auto repair = [](auto& field, bool valid, auto defaultValue, std::string_view name) {
    if (valid) {
      return;
    }
    field = defaultValue;
    KESP_LOG("LifetimeData", LogRepair)
        << "LifetimeData::Validate() setting name: " << name << " to default = " << defaultValue;
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
  const Bytes bytes = Encode(data);
  return os.write(bytes.data(), bytes.size());
}

std::istream& operator>>(std::istream& is, LifetimeData& data) {
  // Starting from the old bytes keeps those that a short read does not replace.
  Bytes bytes = Encode(data);
  try {
    is.read(bytes.data(), bytes.size());
  } catch (...) {  // a stream that was told to throw
    data = Decode(bytes);
    throw;
  }
  data = Decode(bytes);
  return is;
}

}  // namespace dral
