// SPDX-License-Identifier: MIT
#include <iostream>
#include <memory>

#include "commands/Commands.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Text.hpp"
#include "readings/Rules.hpp"

namespace fuelgauge {
namespace {

// Such as " (Status Discharging, CurrentNow 412 mA)". A text of the gauge may hold anything.
std::string Values(const Rule& rule, const Readings& readings) {
  std::string values;
  for (const auto id : rule.properties) {
    const Reading& reading = readings[id];
    values.append(values.empty() ? " (" : ", ").append(reading.property->name);
    values.append(" ").append(Printable(reading.ForPeople()));
  }
  return values.empty() ? values : values.append(")");
}

Json Findings(const Readings& readings) {
  Json findings = Json::array();
  for (const Rule& rule : Rules) {
    if (rule.broken(readings)) {
      Json values = Json::object();
      for (const auto id : rule.properties) {
        const Reading& reading = readings[id];
        values[std::string(reading.property->name)] = ToJson(reading);
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
Json Unread(const Gauge& gauge, const Readings& readings) {
  Json unread = Json::array();
  for (const Reading& reading : readings) {
    if (!reading.Succeeded()) {
      const Property& property = *reading.property;
      unread.push_back({{"property", property.name},
                        {"normal", UnreadIsNormal(reading, readings)},
                        {"reason", gauge.ExplainRead(property, property.type, reading.status)}});
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

ExitStatus Check(const Gauge& gauge, bool json) {
  const Readings readings = gauge.ReadAllWithCauses();
  if (!readings.AnySucceeded()) {
    Complain(NoGauge);
    return ToExitStatus(readings.begin()->status);
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

}  // namespace

Action AddCheck(CLI::App& parser) {
  const auto json = std::make_shared<bool>();
  parser.add_flag("--json", *json, "Answer in JSON");
  return [json](const GaugeOptions& which) { return Check(Gauge(which), *json); };
}

}  // namespace fuelgauge
