// SPDX-License-Identifier: MIT
#include "output/Json.hpp"

#include <iostream>
#include <sstream>
#include <variant>

#include "gauge/LifetimeField.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

namespace {

struct ToValue {
  Json operator()(const auto& value) const { return value; }
  Json operator()(const dral::LifetimeData& data) const {
    Json fields;
    for (const LifetimeField& field : LifetimeFields) {
      fields[std::string(field.name)] = field.Value(data);
    }
    return fields;
  }
};

}  // namespace

Json ToJson(const Reading& reading) {
  Json answer = {{"status", dral::NameOf(reading.status)}, {"value", nullptr}};
  if (reading.Succeeded()) {
    answer["value"] = std::visit(ToValue(), reading.value);
  } else {
    answer["reason"] = reading.Reason();
  }
  return answer;
}

Json ToJson(const Readings& readings) {
  Json answers;
  for (const Reading& reading : readings) {
    answers[std::string(reading.property->name)] = ToJson(reading);
  }
  return answers;
}

void Print(const Json& json) {
  std::istringstream lines(json.dump(2, ' ', false, Json::error_handler_t::replace));
  for (std::string line; std::getline(lines, line);) {
    std::cout << TerminalSafe(line) << "\n";  // JSON itself escapes controls, but for those of C1
  }
}

}  // namespace fuelgauge
