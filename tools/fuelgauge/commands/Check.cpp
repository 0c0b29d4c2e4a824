// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cerrno>
#include <iostream>
#include <memory>
#include <string_view>

#include "commands/Commands.hpp"
#include "gauge/Concat.hpp"
#include "gauge/Number.hpp"
#include "judging/Findings.hpp"
#include "output/Json.hpp"
#include "output/Text.hpp"

namespace fuelgauge {
namespace {

struct CheckOptions {
  bool json = false;
  std::string severity = "warning";
  std::vector<Rule> limits;
};

// A text in quotes, since a blank may be what is wrong with it; a number not rounded, since its last
// digit may be.
std::string ValueForPeople(const Reading& reading, bool raw) {
  if (reading.Text() != nullptr) {
    return "'" + reading.ForPeople() + "'";
  }
  const auto number = reading.Number();
  const Unit& unit = reading.property->unit;
  return !number || unit == units::None ? reading.ForPeople()
         : raw                          ? Raw(*number, unit)
                                        : Exact(*number, unit);
}

// Such as "Status 'Discharging', CurrentNow 412 mA".
std::string ValuesForPeople(const Evidence& evidence) {
  std::string values;
  for (const Reading* reading : evidence.readings) {
    values += Concat(", ", reading->property->name,
                     reading->Succeeded() ? " " + ValueForPeople(*reading, evidence.raw)
                                          : ": " + reading->Reason());
  }
  for (const auto& [field, value] : evidence.fields) {
    values += Concat(", ", field->name, " ", ForPeople(value, field->quantity.unit));
  }
  return values.substr(2);
}

Json ValuesToJson(const Evidence& evidence) {
  Json values;
  for (const Reading* reading : evidence.readings) {
    values[std::string(reading->property->name)] = ToJson(*reading);
  }
  for (const auto& [field, value] : evidence.fields) {
    values[std::string(field->name)] = value;
  }
  return values;
}

void PrintJson(const std::vector<Finding>& findings, const Readings& readings) {
  Json answer = {{"findings", Json::array()}, {"unread", Json::array()}};
  for (const auto& [rule, evidence] : findings) {
    answer["findings"].push_back({{"rule", rule->name},
                                  {"severity", NameOf(rule->severity)},
                                  {"reason", rule->reason},
                                  {"values", ValuesToJson(evidence)}});
  }
  for (const Reading& reading : readings) {
    if (!reading.Succeeded()) {
      answer["unread"].push_back({{"property", reading.property->name},
                                  {"normal", reading.MayBeMissing()},
                                  {"reason", reading.Reason()}});
    }
  }
  Print(answer);
}

void PrintForPeople(const std::vector<Finding>& findings, const Readings& readings) {
  if (findings.empty()) {
    std::cout << "nothing is wrong\n";
  }
  for (const auto& [rule, evidence] : findings) {
    std::cout << NameOf(rule->severity) << ": " << rule->name << ": " << rule->reason << " ("
              << TerminalSafe(ValuesForPeople(evidence)) << ")\n";
  }
  const std::string_view energy = readings.EnergyRemark();
  if (!energy.empty()) {
    std::cout << "normal: " << energy << "\n";
  }
  for (const Reading& reading : readings) {
    if (reading.MayBeMissing() && (energy.empty() || reading.error != ENOENT)) {
      std::cout << "normal: " << reading.property->name << ": " << reading.Reason() << "\n";
    }
  }
}

ExitStatus Check(const Gauge& gauge, const CheckOptions& options) {
  const Readings readings = gauge.ReadAll();
  const std::vector<Finding> findings = Findings(readings, options.limits);
  const std::string type = gauge.TheSupply().Type();
  const bool battery = type.empty() || type == "Battery";
  const bool judged =
      battery && readings.AnySucceeded() && (!findings.empty() || readings.AnyMeasured());
  if (options.json) {
    PrintJson(findings, readings);
  } else if (judged) {
    PrintForPeople(findings, readings);
  }
  if (!battery) {
    throw ToolError(ExitStatus::FileError, Concat("'", gauge.TheSupply().Name(),
                                                  "' is no battery: its type is '", type, "'"));
  }
  if (!judged) {
    throw ToolError(ToExitStatus(readings.Telling().status), gauge.Missing(readings));
  }
  const Severity least = Severities.at(options.severity);
  const bool wrong = std::any_of(findings.begin(), findings.end(), [least](const Finding& each) {
    return each.rule->severity >= least;
  });
  return wrong ? ExitStatus::Findings : ExitStatus::Success;
}

// A number that was not read breaks the rule, since nobody knows.
Rule LimitOf(bool least, std::string_view text) {
  const auto equals = text.find('=');
  if (equals == 0 || equals == std::string_view::npos) {
    throw UsageError(Concat("'", text, "' is not PROPERTY=NUMBER"));
  }
  const Property& property = FindProperty(text.substr(0, equals));
  if (property.type != Type::Int) {
    throw UsageError(Concat(property.name, " is not a number, and has no limits"));
  }
  const std::string_view digits = text.substr(equals + 1);
  const auto limit = WholeNumber<int>(digits);
  if (!limit) {
    throw UsageError(Concat(property.name, ": '", digits, "' is not a whole number of 32 bits"));
  }
  return {
      least ? "minimum" : "maximum", Severity::Error,
      Concat(property.name, " must be at ", least ? "least " : "most ", Raw(*limit, property.unit)),
      [id = property.id, least, limit = *limit](const Readings& readings) {
        const auto number = readings[id].Number();
        const bool kept = number && (least ? *number >= limit : *number <= limit);
        return kept ? Evidence{} : Evidence{{&readings[id]}, {}, true};
      }};
}

void AddLimit(CLI::App& parser, const std::shared_ptr<CheckOptions>& options, bool least,
              const std::string& description) {
  const auto* const name = least ? "--min" : "--max";
  const auto add = [options, name, least](const std::vector<std::string>& texts) {
    try {
      for (const std::string& text : texts) {
        options->limits.push_back(LimitOf(least, text));
      }
    } catch (const UsageError& error) {
      throw CLI::ValidationError(name, error.text);
    }
  };
  parser.add_option_function<std::vector<std::string>>(name, add, description)
      ->type_name("PROPERTY=NUMBER")
      ->allow_extra_args(false);
}

}  // namespace

Action AddCheck(CLI::App& parser) {
  const auto options = std::make_shared<CheckOptions>();
  parser.add_flag("--json", options->json, "Answer in JSON");
  parser
      .add_option("--severity", options->severity,
                  "Lowest severity that ends with 1: notice, warning or error; default warning")
      ->type_name("LEVEL")
      ->check(CLI::IsMember(Severities).description(""));
  AddLimit(parser, options, true,
           "Error if below NUMBER, in the kernel's unit, or unreadable; repeatable; PROPERTY: " +
               PropertyNames([](const Property& each) { return each.type == Type::Int; }));
  AddLimit(parser, options, false, "Error if above NUMBER, or unreadable; repeatable");
  return [options](const Request& request) { return Check(Gauge(request.One()), *options); };
}

}  // namespace fuelgauge
