// SPDX-License-Identifier: MIT
#include "output/MetricsText.hpp"

#include <algorithm>

#include "gauge/Concat.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

namespace {

std::string Quoted(std::string_view value) {
  std::string quoted = "\"";
  for (const char byte : TerminalSafe(value)) {
    quoted.append(byte == '\\' || byte == '"' ? 1 : 0, '\\').append(1, byte);
  }
  return quoted + "\"";
}

std::string WithoutTrailingZeros(std::string digits) {
  if (digits.find('.') != std::string::npos) {
    digits.erase(digits.find_last_not_of('0') + 1);
    digits.erase(digits.find_last_not_of('.') + 1);
  }
  return digits;
}

}  // namespace

void MetricsText::Add(const Metric& metric, std::int64_t number, const Labels& labels) {
  const std::string name = Concat("fuelgauge_", metric.name);
  auto family = std::find_if(families.begin(), families.end(),
                             [&name](const Family& each) { return each.name == name; });
  if (family == families.end()) {
    family = families.insert(family,
                             {name, Concat("# HELP ", name, " ", metric.help, "\n# TYPE ", name,
                                           name.ends_with("_total") ? " counter\n" : " gauge\n")});
  }
  family->text += Concat(name, "{power_supply=", Quoted(supply));
  for (const auto& [label, value] : labels) {
    family->text += Concat(",", label, "=", Quoted(value));
  }
  family->text += Concat("} ", WithoutTrailingZeros(Decimal(number, metric.decimals)), "\n");
}

std::string MetricsText::Text() const {
  std::string text;
  for (const Family& family : families) {
    text += family.text;
  }
  return text;
}

}  // namespace fuelgauge
