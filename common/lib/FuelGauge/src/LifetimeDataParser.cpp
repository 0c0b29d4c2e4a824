// SPDX-License-Identifier: MIT
#include "LifetimeDataParser.hpp"

#include <cstdint>
#include <fstream>
#include <istream>
#include <locale>
#include <utility>

#include "Decimal.hpp"
#include "Log.hpp"

namespace dral {
namespace {

// Each keeps the low 16 bits of the number: `LifetimeData::Validate` judges the outcome.
template <std::int16_t LifetimeData::*Field>
void SetSigned(const std::string& text, LifetimeData& data) {
  data.*Field = static_cast<std::int16_t>(DecimalToInt32(text));
}

template <std::uint16_t LifetimeData::*Field>
void SetUnsigned(const std::string& text, LifetimeData& data) {
  data.*Field = static_cast<std::uint16_t>(DecimalToUint64(text));
}

}  // namespace

const std::unordered_map<std::string, LifetimeDataParser::Setter> LifetimeDataParser::mapping = {
    {"maxTemp", SetSigned<&LifetimeData::maxTemp>},
    {"minTemp", SetSigned<&LifetimeData::minTemp>},
    {"maxPackVoltage", SetUnsigned<&LifetimeData::maxPackVoltage>},
    {"minPackVoltage", SetUnsigned<&LifetimeData::minPackVoltage>},
    {"maxChargeCurrent", SetSigned<&LifetimeData::maxChargeCurrent>},
    {"maxDischargeCurrent", SetSigned<&LifetimeData::maxDischargeCurrent>},
};

std::istream& operator>>(std::istream& is, LifetimeDataParser::kv_pair& pair) {
  return is >> pair.key >> pair.value;
}

LifetimeDataParser::LifetimeDataParser(std::string_view path, const LifetimeData& defaults)
    : lifetimeData(defaults) {
  std::ifstream file;
  file.imbue(std::locale::classic());  // the global locale may know other white space
  file.open(std::string(path));
  if (!file) {
    KESP_LOG("LifetimeDataParser", LogFailure) << "Failed to open file : " << path;
    lifetimeData.Validate();
    return;
  }
  std::unordered_map<std::string, std::string> values;
  for (kv_pair pair; file >> pair;) {  // of a key that comes twice, the first value counts
    values.emplace(std::move(pair.key), std::move(pair.value));
  }
  file.close();
  for (const auto& [key, value] : values) {
    KESP_LOG("LifetimeDataParser", LogProgress) << "<key, value> In file: " << key << " " << value;
  }
  for (const auto& [key, set] : mapping) {
    const auto found = values.find(key);
    if (found == values.end()) {
      KESP_LOG("LifetimeDataParser", LogFailure) << "Valid <key, value> Not Found: " << key;
      continue;
    }
    set(found->second, lifetimeData);
    KESP_LOG("LifetimeDataParser", LogProgress)
        << "Valid <key, value> Found: " << key << " " << found->second;
  }
  lifetimeData.Validate();
}

}  // namespace dral
