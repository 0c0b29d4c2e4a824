// SPDX-License-Identifier: MIT
#include "Presentation.hpp"

#include <algorithm>
#include <iostream>

#include "LifetimeField.hpp"
#include "Units.hpp"

using dral::FuelGaugeStatus;

std::string_view StatusName(FuelGaugeStatus status) {
  switch (status) {
    case FuelGaugeStatus::Success:
      return "Success";
    case FuelGaugeStatus::Failure:
      return "Failure";
    case FuelGaugeStatus::FileError:
      return "FileError";
    case FuelGaugeStatus::NoData:
      return "NoData";
  }
  return "unknown";
}

namespace {

Json ValueToJson(const dral::LifetimeData& data) {
  Json fields;
  for (const LifetimeField& field : LifetimeFields) {
    fields[std::string(field.name)] = field.Value(data);
  }
  return fields;
}

template <typename T>
Json ValueToJson(const T& value) {
  return value;
}

}  // namespace

Json ToJson(FuelGaugeStatus status, const dral::PropertyValue& value) {
  Json answer = {{"status", StatusName(status)}, {"value", nullptr}};
  if (status == FuelGaugeStatus::Success) {
    answer["value"] = std::visit([](const auto& held) { return ValueToJson(held); }, value);
  }
  return answer;
}

Json ToJson(const std::vector<Reading>& readings) {
  Json answers;
  for (const Reading& reading : readings) {
    answers[std::string(reading.property->name)] = ToJson(reading.status, reading.value);
  }
  return answers;
}

void Print(const Json& json) {
  std::cout << json.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
}

void PrintCompact(const Json& json) {
  std::cout << json.dump(-1, ' ', false, Json::error_handler_t::replace) << "\n";
}

std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) {
    return text;
  }
  std::string field = "\"";
  for (const char byte : text) {
    field.append(byte == '"' ? 2 : 1, byte);
  }
  return field.append("\"");
}

void PrintRow(std::string_view name, const std::string& value, const std::string& remark) {
  std::string row = PadTo(26, std::string(name)) + PadTo(20, value) + remark;
  row.erase(row.find_last_not_of(' ') + 1);
  std::cout << row << "\n";
}

void PrintFields(const dral::LifetimeData& data) {
  for (const LifetimeField& field : LifetimeFields) {
    const int value = field.Value(data);
    PrintRow("  " + std::string(field.name), ForPeople(value, field.unit), Raw(value, field.unit));
  }
}

std::string ToUtf8(const std::string& text) {
  return Json::parse(Json(text).dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::string Printable(std::string_view text) {
  constexpr std::size_t Most = 60;
  std::string printable(text.substr(0, Most));
  std::replace_if(
      printable.begin(), printable.end(),
      [](char byte) { return static_cast<unsigned char>(byte) < 0x20U || byte == 0x7F; }, '?');
  return text.size() > Most ? printable + "..." : printable;
}

void Complain(std::string_view text) {
  std::cerr << "fuelgauge: " << text << "\n";
}
