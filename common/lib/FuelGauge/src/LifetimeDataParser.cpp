// SPDX-License-Identifier: MIT
#include "LifetimeDataParser.hpp"

#include <fstream>
#include <istream>
#include <locale>
#include <type_traits>
#include <utility>
#include <variant>

#include "Decimal.hpp"
#include "LifetimeFields.hpp"
#include "Log.hpp"

namespace dral {
namespace {

// Keeps the low 16 bits of the number: `LifetimeData::Validate` judges the outcome.
LifetimeDataParser::Setter SetterOf(const LifetimeField& field) {
  return std::visit(
      [](auto member) -> LifetimeDataParser::Setter {
        return [member](const std::string& text, LifetimeData& data) {
          using Value = std::remove_reference_t<decltype(data.*member)>;
          if constexpr (std::is_unsigned_v<Value>) {
            data.*member = static_cast<Value>(DecimalToUint64(text));
          } else {
            data.*member = static_cast<Value>(DecimalToInt32(text));
          }
        };
      },
      field.member);
}

}  // namespace

// As early as the registry: the gauge that a static initialiser creates may read an override file.
[[gnu::init_priority(101)]] const std::unordered_map<std::string, LifetimeDataParser::Setter>
    LifetimeDataParser::mapping = [] {
      std::unordered_map<std::string, Setter> setters;
      for (const LifetimeField& field : LifetimeFields) {
        setters.emplace(field.name, SetterOf(field));
      }
      return setters;
    }();

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
