// SPDX-License-Identifier: MIT
#include "judging/Findings.hpp"

#include <algorithm>

namespace fuelgauge {
namespace {

bool Contains(const auto& range, const auto& value) {
  return std::find(range.begin(), range.end(), value) != range.end();
}

bool Silences(const Finding& cause, const Finding& consequence) {
  const auto& registers = cause.evidence.readings;
  const auto& others = consequence.evidence.readings;
  return Contains(cause.rule->excuses, consequence.rule->name) ||
         (Contains(cause.rule->silences, consequence.rule->name) &&
          std::find_first_of(registers.begin(), registers.end(), others.begin(), others.end()) !=
              registers.end());
}

}  // namespace

std::vector<Finding> Findings(const Readings& readings, const std::vector<Rule>& limits) {
  std::vector<Finding> found;
  for (const auto* const rules : {&Rules, &limits}) {
    for (const Rule& rule : *rules) {
      Evidence evidence = rule.find(readings);
      if (!evidence.readings.empty() || !evidence.fields.empty()) {
        found.push_back({&rule, std::move(evidence)});
      }
    }
  }
  std::vector<Finding> told;
  for (const Finding& finding : found) {
    if (std::none_of(found.begin(), found.end(),
                     [&finding](const Finding& each) { return Silences(each, finding); })) {
      told.push_back(finding);
    }
  }
  return told;
}

}  // namespace fuelgauge
