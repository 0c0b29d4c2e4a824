// SPDX-License-Identifier: MIT
#include "readings/Check.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

namespace fuelgauge {
namespace {

bool Silences(const Finding& cause, const Finding& consequence) {
  const auto& rules = cause.rule->silences;
  const auto& registers = cause.evidence.properties;
  const auto& others = consequence.evidence.properties;
  return std::find(rules.begin(), rules.end(), consequence.rule->name) != rules.end() &&
         std::find_first_of(registers.begin(), registers.end(), others.begin(), others.end()) !=
             registers.end();
}

}  // namespace

std::vector<Finding> Check(const Readings& readings, const std::vector<Rule>& limits) {
  std::vector<Finding> findings;
  for (const auto* const rules : {&Rules, &limits}) {
    for (const Rule& rule : *rules) {
      Evidence evidence = rule.find(readings);
      if (!evidence.properties.empty() || !evidence.fields.empty()) {
        findings.push_back({&rule, std::move(evidence)});
      }
    }
  }
  std::vector<Finding> told;
  std::copy_if(findings.begin(), findings.end(), std::back_inserter(told),
               [&findings](const Finding& finding) {
                 return std::none_of(
                     findings.begin(), findings.end(),
                     [&finding](const Finding& each) { return Silences(each, finding); });
               });
  return told;
}

}  // namespace fuelgauge
