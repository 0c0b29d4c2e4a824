// SPDX-License-Identifier: MIT
#include <iostream>
#include <map>
#include <memory>

#include "commands/Commands.hpp"
#include "gauge/Concat.hpp"
#include "gauge/LifetimeField.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Text.hpp"

namespace fuelgauge {
namespace {

const std::map<std::string, Type> Types = {
    {"string", Type::String}, {"int", Type::Int},           {"uint", Type::Uint},
    {"bool", Type::Bool},     {"lifetime", Type::Lifetime},
};

struct GetOptions {
  std::string property;
  std::string type;
  bool json = false;
};

void PrintBare(const Reading& reading) {
  if (const auto* record = reading.Record()) {
    for (const LifetimeField& field : LifetimeFields) {  // just what an override file holds
      std::cout << field.name << " " << field.Value(*record) << "\n";
    }
  } else {
    std::cout << TerminalSafe(reading.Bare()) << "\n";
  }
}

ExitStatus Get(const Gauge& gauge, const GetOptions& options) {
  const Property& property = FindProperty(options.property);
  const Type type = options.type.empty() ? property.type : Types.at(options.type);
  if (property.id == dral::FuelGaugeProperty::LifetimeDataResetValue && type != property.type) {
    throw UsageError("--as: it has no file: LifetimeDataResetValue is read as lifetime alone");
  }
  const Reading reading = gauge.Read(property, type);
  if (options.json) {
    Print({{options.property, ToJson(reading)}});
  } else if (reading.Succeeded()) {
    PrintBare(reading);
  }
  if (!reading.Succeeded()) {
    Complain(Concat(property.name, ": ", gauge.Reason(reading)));
  } else if (type == Type::Uint) {
    const std::string text = gauge.Read(property, Type::String).ForPeople();
    if (text.find('-') == text.find_first_not_of(" \t\n\v\f\r")) {
      Complain(Concat(property.name, ": as uint, '", text, "' loses its sign"));
    }
  }
  return ToExitStatus(reading.status);
}

}  // namespace

Action AddGet(CLI::App& parser) {
  const auto options = std::make_shared<GetOptions>();
  parser
      .add_option("PROPERTY", options->property,
                  "One of " + PropertyNames([](const Property&) { return true; }))
      ->required();
  parser.add_option("--as", options->type, "Read it as string, int, uint, bool or lifetime")
      ->type_name("TYPE")
      ->check(CLI::IsMember(Types).description(""));
  parser.add_flag("--json", options->json, "Answer in JSON");
  return [options](const Request& request) { return Get(Gauge(request.One()), *options); };
}

}  // namespace fuelgauge
