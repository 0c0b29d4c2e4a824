// SPDX-License-Identifier: MIT
#include "gauge/Reading.hpp"

#include <cerrno>
#include <ios>
#include <variant>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

// As much of a text as a message may hold, cut between its characters (UTF-8), without its newline.
std::string Shortened(std::string_view text) {
  constexpr std::size_t Most = 60;
  text = text.substr(0, text.find_last_not_of('\n') + 1);
  if (text.size() <= Most) {
    return std::string(text);
  }
  std::size_t end = Most;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
    --end;
  }
  return Concat(text.substr(0, end), "...");
}

}  // namespace

std::optional<int> Reading::Number() const {
  if (const auto* flag = As<bool>()) {
    return *flag ? 1 : 0;
  }
  const auto* number = As<int>();
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

std::string Reading::Bare() const {
  const bool none = !Succeeded() || Record() != nullptr;
  const auto bare = [](const auto& held) { return Concat(std::boolalpha, held); };
  return none ? "" : std::visit(bare, value);
}

std::string Reading::ForPeople() const {
  if (!Succeeded()) {
    return "-";
  }
  if (const auto* flag = As<bool>()) {
    return *flag ? "yes" : "no";
  }
  const auto number = Number();
  return number ? fuelgauge::ForPeople(*number, property->unit) : Bare();
}

std::string Reading::Reason() const {
  if (!refusal.empty()) {
    return refusal;
  }
  if (error == ENODATA && property->id == TimeToEmpty) {
    return "no estimate: the battery is not discharging, or its current is too small (ENODATA)";
  }
  if (error == ENOENT && property->id == LifetimeData) {
    return "no such file, which only a vendor's driver offers (ENOENT)";
  }
  if (error == ENODEV && otherDriver) {
    return "its driver has no value now (ENODEV)";
  }
  if (error != 0) {
    return ErrorText(error);
  }
  if (std::holds_alternative<dral::LifetimeData>(value)) {
    return "the file is too short for a record of 32 bytes";
  }
  if (status == dral::FuelGaugeStatus::NoData) {
    return "the file is empty";
  }
  const std::string number = std::holds_alternative<unsigned int>(value)
                                 ? "whole number from 0 to 4294967295"
                                 : "whole number of 32 bits";
  return text.empty() ? "the file held no " + number
                      : Concat("'", Shortened(text), "' is not a ", number);
}

bool Reading::MayBeMissing() const {
  if (otherDriver) {  // ENODEV is how ACPI's says that it does not know
    return error == ENOENT || error == ENODATA || error == ENODEV;
  }
  return (error == ENOENT && property->optional) ||
         (error == ENODATA && property->id == TimeToEmpty);
}

}  // namespace fuelgauge
