// SPDX-License-Identifier: MIT
#include <iostream>

#include "Commands.hpp"
#include "Gauge.hpp"
#include "Presentation.hpp"
#include "Rules.hpp"

using Readings = std::vector<Reading>;

namespace {

// Such as " (Status Discharging, CurrentNow 412 mA)". A text of the gauge may hold anything.
std::string Values(const Rule& rule, const Readings& readings) {
  std::string values;
  for (const auto id : rule.properties) {
    const Reading& reading = Of(readings, id);
    values.append(values.empty() ? " (" : ", ").append(reading.property->name);
    values.append(" ").append(Printable(ForPeople(reading)));
  }
  return values.empty() ? values : values.append(")");
}

Json Findings(const Readings& readings) {
  Json findings = Json::array();
  for (const Rule& rule : Rules) {
    if (rule.broken(readings)) {
      Json values = Json::object();
      for (const auto id : rule.properties) {
        const Reading& reading = Of(readings, id);
        values[std::string(reading.property->name)] = ToJson(reading.status, reading.value);
      }
      findings.push_back({{"rule", rule.name},
                          {"severity", rule.severity},
                          {"reason", std::string(rule.reason) + Values(rule, readings)},
                          {"values", values}});
    }
  }
  return findings;
}

// What could not be read, why, and whether that is in order.
Json Unread(dral::FuelGaugeIF& gauge, const Readings& readings) {
  Json unread = Json::array();
  for (const Reading& reading : readings) {
    if (!reading.Succeeded()) {
      const Property& property = *reading.property;
      unread.push_back(
          {{"property", property.name},
           {"normal", UnreadIsNormal(reading, readings)},
           {"reason", ExplainRead(gauge, property, property.natural, reading.status)}});
    }
  }
  return unread;
}

void PrintForPeople(const Json& findings, const Json& unread) {
  const auto text = [](const Json& object, const char* name) {
    return object[name].get<std::string>();
  };
  if (findings.empty()) {
    std::cout << "nothing is wrong\n";
  }
  for (const Json& finding : findings) {
    std::cout << text(finding, "severity") << ": " << text(finding, "rule") << ": "
              << text(finding, "reason") << "\n";
  }
  for (const Json& each : unread) {
    std::cout << (each["normal"] == true ? "normal: " : "error: ") << text(each, "property")
              << " could not be read: " << text(each, "reason") << "\n";
  }
}

}  // namespace

ExitStatus Check(dral::FuelGaugeIF& gauge, bool json) {
  const Readings readings = ReadAllWithCauses(gauge);
  if (!AnySucceeded(readings)) {
    Complain(NoGauge);
    return ToExitStatus(readings.front().status);
  }
  const Json findings = Findings(readings);
  const Json unread = Unread(gauge, readings);
  if (json) {
    Print({{"findings", findings}, {"unread", unread}});
  } else {
    PrintForPeople(findings, unread);
  }
  return findings.empty() ? ExitStatus::Success : ExitStatus::Findings;
}
