// SPDX-License-Identifier: MIT
#include "readings/Reading.hpp"

#include <cerrno>
#include <variant>

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
  return std::string(text.substr(0, end)).append("...");
}

}  // namespace

std::optional<int> Reading::Number() const {
  if (!Succeeded()) {
    return std::nullopt;
  }
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? 1 : 0;
  }
  const int* number = std::get_if<int>(&value);
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

std::optional<std::string_view> Reading::Text() const {
  const std::string* text = std::get_if<std::string>(&value);
  return Succeeded() && text != nullptr ? std::optional<std::string_view>(*text) : std::nullopt;
}

const dral::LifetimeData* Reading::Record() const {
  return Succeeded() ? std::get_if<dral::LifetimeData>(&value) : nullptr;
}

std::string Reading::ForPeople() const {
  if (!Succeeded()) {
    return "-";
  }
  if (const auto text = Text()) {
    return std::string(*text);
  }
  if (const bool* flag = std::get_if<bool>(&value)) {
    return *flag ? "yes" : "no";
  }
  const auto number = Number();
  return number ? fuelgauge::ForPeople(*number, property->unit) : "";
}

std::string Reading::Reason() const {
  if (cause.error == ENODATA && property->id == TimeToEmpty) {
    return "no estimate: the battery is not discharging, or its current is too small (ENODATA)";
  }
  if (cause.error == ENOENT && property->id == LifetimeData) {
    return "no such file, which only a vendor's driver offers (ENOENT)";
  }
  if (cause.error != 0) {
    return ErrorText(cause.error);
  }
  if (cause.text.empty()) {
    return "the file is empty";
  }
  const bool isRecord = std::holds_alternative<dral::LifetimeData>(value);
  if (std::holds_alternative<std::string>(value) ||
      (isRecord && cause.text.size() >= sizeof(dral::LifetimeData))) {
    return "the read failed, and the file could be read a moment later";
  }
  if (isRecord) {
    return "the file holds " + std::to_string(cause.text.size()) + " bytes, not a record of 32";
  }
  const bool isUnsigned = std::holds_alternative<unsigned int>(value);
  return std::string("'")
      .append(Shortened(cause.text))
      .append(isUnsigned ? "' is not a whole number from 0 to 4294967295"
                         : "' is not a whole number of 32 bits");
}

bool Reading::MayBeMissing() const {
  return (cause.error == ENOENT && property->optional) ||
         (cause.error == ENODATA && property->id == TimeToEmpty);
}

}  // namespace fuelgauge
