// SPDX-License-Identifier: MIT
#include "output/MetricsText.hpp"

#include <algorithm>

#include "gauge/Concat.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

namespace {

std::string Quoted(const std::string& value) {
  std::string quoted = "\"";
  for (const char byte : TerminalSafe(value)) {
    quoted.append(byte == '\\' || byte == '"' ? 1 : 0, '\\').append(1, byte);
  }
  return quoted.append("\"");
}

std::string WithoutTrailingZeros(std::string digits) {
  if (digits.find('.') != std::string::npos) {
    digits.erase(digits.find_last_not_of('0') + 1);
    digits.erase(digits.find_last_not_of('.') + 1);
  }
  return digits;
}

}  // namespace

void MetricsText::Family(const Metric& metric) {
  const std::string name = Concat("fuelgauge_", metric.name);
  const auto found = std::find_if(families.begin(), families.end(),
                                  [&name](const Block& each) { return each.name == name; });
  family = static_cast<std::size_t>(found - families.begin());
  if (found == families.end()) {
    families.push_back({name, static_cast<std::size_t>(metric.decimals),
                        Concat("# HELP ", name, " ", metric.help, "\n# TYPE ", name,
                               name.ends_with("_total") ? " counter\n" : " gauge\n")});
  }
}

void MetricsText::Sample(std::int64_t number, const Labels& labels) {
  auto& [name, decimals, text] = families.at(family);
  text += Concat(name, "{power_supply=", Quoted(supply));
  for (const auto& [label, value] : labels) {
    text += Concat(",", label, "=", Quoted(value));
  }
  text += Concat("} ", WithoutTrailingZeros(Decimal(number, decimals)), "\n");
}

std::string MetricsText::Text() const {
  std::string text;
  for (const Block& block : families) {
    text += block.text;
  }
  return text;
}

}  // namespace fuelgauge
