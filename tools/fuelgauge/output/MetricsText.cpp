// SPDX-License-Identifier: MIT
#include "output/MetricsText.hpp"

#include <algorithm>
#include <cstdlib>

#include "output/Text.hpp"

namespace fuelgauge {

namespace {

std::string Quoted(const std::string& value) {
  std::string quoted = "\"";
  for (const char byte : TerminalSafe(value)) {
    if (byte == '\\' || byte == '"') {
      quoted.append(1, '\\').append(1, byte);
    } else {
      quoted.append(1, byte);
    }
  }
  return quoted.append("\"");
}

std::string Decimal(std::int64_t number, int decimals) {
  std::string digits = std::to_string(std::abs(number));
  if (decimals > 0) {
    const auto least = static_cast<std::size_t>(decimals) + 1;
    digits.insert(0, least - std::min(least, digits.size()), '0');
    digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, '.');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') {
      digits.pop_back();
    }
  }
  return number < 0 ? digits.insert(0, 1, '-') : digits;
}

}  // namespace

void MetricsText::Family(std::string_view name, std::string_view help) {
  const std::string full = "fuelgauge_" + std::string(name);
  const auto found = std::find_if(families.begin(), families.end(),
                                  [&full](const Block& each) { return each.name == full; });
  if (found != families.end()) {
    family = &*found;
    return;
  }
  family = &families.emplace_back();
  family->name = full;
  family->text.append("# HELP ").append(full).append(" ").append(help).append("\n");
  family->text.append("# TYPE ").append(full).append(" ");
  family->text.append(name.ends_with("_total") ? "counter" : "gauge").append("\n");
}

void MetricsText::Sample(std::int64_t number, int decimals, const Labels& labels) {
  std::string& text = family->text;
  text.append(family->name).append("{power_supply=").append(Quoted(supply));
  for (const auto& [name, value] : labels) {
    text.append(",").append(name).append("=").append(Quoted(value));
  }
  text.append("} ").append(Decimal(number, decimals)).append("\n");
}

std::string MetricsText::Text() const {
  std::string text;
  for (const Block& block : families) {
    text.append(block.text);
  }
  return text;
}

}  // namespace fuelgauge
