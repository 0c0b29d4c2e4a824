// SPDX-License-Identifier: MIT
#include <iostream>
#include <map>
#include <memory>

#include "commands/Commands.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "readings/LifetimeField.hpp"

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

// Prints the bare value, for scripts.
struct PrintBare {
  void operator()(bool flag) const { std::cout << (flag ? "true" : "false") << "\n"; }
  void operator()(const dral::LifetimeData& data) const {
    for (const LifetimeField& field : LifetimeFields) {  // just what an override file holds
      std::cout << field.name << " " << field.Value(data) << "\n";
    }
  }
  template <typename T>
  void operator()(const T& value) const {
    std::cout << value << "\n";
  }
};

ExitStatus Get(const Gauge& gauge, const GetOptions& options) {
  const Property& property = FindProperty(options.property);
  const Type type = options.type.empty() ? property.type : Types.at(options.type);
  const Reading reading = gauge.Read(property, type);
  if (options.json) {
    Print({{options.property, ToJson(reading)}});
  } else if (reading.Succeeded()) {
    std::visit(PrintBare{}, reading.value);
  }
  if (!reading.Succeeded()) {
    Complain(options.property + ": " + gauge.ExplainRead(property, type, reading.status));
  }
  return ToExitStatus(reading.status);
}

}  // namespace

Action AddGet(CLI::App& parser) {
  const auto options = std::make_shared<GetOptions>();
  parser.add_option("PROPERTY", options->property, "One of the names that 'list' shows")
      ->required();
  parser.add_option("--as", options->type, "Read it as string, int, uint, bool or lifetime")
      ->type_name("TYPE")
      ->check(CLI::IsMember(Types).description(""));
  parser.add_flag("--json", options->json, "Answer in JSON");
  return [options](const GaugeOptions& which) { return Get(Gauge(which), *options); };
}

}  // namespace fuelgauge
