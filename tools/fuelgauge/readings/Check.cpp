// SPDX-License-Identifier: MIT
#include "readings/Check.hpp"

#include <set>
#include <utility>

namespace fuelgauge {

std::vector<Finding> Check(const Readings& readings) {
  std::vector<Finding> findings;
  std::set<std::string_view> silenced;
  for (const Rule& rule : Rules) {
    Evidence evidence = rule.find(readings);
    if (!evidence.properties.empty() || !evidence.fields.empty()) {
      findings.push_back({&rule, std::move(evidence)});
      silenced.insert(rule.silences.begin(), rule.silences.end());
    }
  }
  std::erase_if(findings, [&silenced](const Finding& finding) {
    return silenced.contains(finding.rule->name);
  });
  return findings;
}

}  // namespace fuelgauge
