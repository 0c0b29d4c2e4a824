// SPDX-License-Identifier: MIT
#include <iostream>

#include "Commands.hpp"
#include "Presentation.hpp"
#include "Rules.hpp"

namespace {

// Such as "Status Discharging, CurrentNow 412 mA".
std::string Values(const Rule& rule, const std::vector<Reading>& readings) {
  std::string values;
  for (const auto id : rule.properties) {
    const Reading& reading = Of(readings, id);
    values.append(values.empty() ? "" : ", ").append(reading.property->name);
    values.append(" ").append(ForPeople(reading));
  }
  return values;
}

}  // namespace

ExitStatus Check(dral::FuelGaugeIF& gauge, bool json) {
  const std::vector<Reading> readings = ReadAll(gauge);
  if (!AnySucceeded(readings)) {
    Complain(NoGauge);
    return ToExitStatus(readings.front().status);
  }
  Json findings = Json::array();
  for (const Rule& rule : Rules) {
    if (!rule.broken(readings)) {
      continue;
    }
    const std::string values = Values(rule, readings);
    findings.push_back({{"rule", rule.name},
                        {"severity", rule.severity},
                        {"reason", rule.reason},
                        {"values", values}});
    if (!json) {
      std::cout << rule.severity << ": " << rule.name << ": " << rule.reason
                << (values.empty() ? "" : " (" + values + ")") << "\n";
    }
  }
  if (json) {
    Print({{"findings", findings}});
  } else if (findings.empty()) {
    std::cout << "nothing is wrong\n";
  }
  return findings.empty() ? ExitStatus::Success : ExitStatus::Findings;
}
