// SPDX-License-Identifier: MIT
#include "readings/Reading.hpp"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <system_error>
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

template <typename T>
bool BeginsWith(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  text.remove_prefix(text.starts_with('+') ? 1 : 0);
  T number{};
  return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
}

// Whether a file's text is a value of the type that an alternative has.
struct IsTextOf {
  std::string_view text;

  bool operator()(const std::string& /*type*/) const { return !text.empty(); }
  bool operator()(const dral::LifetimeData& /*type*/) const {
    return text.size() >= sizeof(dral::LifetimeData);
  }
  bool operator()(bool /*type*/) const { return BeginsWith<int>(text); }
  template <typename T>
  bool operator()(T /*type*/) const {
    return BeginsWith<T>(text);
  }
};

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
  if (!cause.unfit.empty()) {
    return cause.unfit;
  }
  if (cause.error == ENODATA && property->id == TimeToEmpty) {
    return "no estimate: the battery is not discharging, or its current is too small (ENODATA)";
  }
  if (cause.error == ENOENT && property->id == LifetimeData) {
    return "no such file, which only a vendor's driver offers (ENOENT)";
  }
  if (cause.error == ENODEV && otherDriver) {
    return "its driver has no value now (ENODEV)";
  }
  if (cause.error != 0) {
    return ErrorText(cause.error);
  }
  if (cause.text.empty()) {
    return "the file is empty";
  }
  if (CameBack()) {
    return "the read failed, and the file could be read a moment later";
  }
  if (std::holds_alternative<dral::LifetimeData>(value)) {
    return "the file holds " + std::to_string(cause.text.size()) + " bytes, not a record of 32";
  }
  const bool isUnsigned = std::holds_alternative<unsigned int>(value);
  return std::string("'")
      .append(Shortened(cause.text))
      .append(isUnsigned ? "' is not a whole number from 0 to 4294967295"
                         : "' is not a whole number of 32 bits");
}

bool Reading::CameBack() const {
  return !Succeeded() && std::visit(IsTextOf{cause.text}, value);
}

bool Reading::MayBeMissing() const {
  if (otherDriver) {  // ENODEV is how ACPI's says that it does not know
    return cause.error == ENOENT || cause.error == ENODATA || cause.error == ENODEV;
  }
  return (cause.error == ENOENT && property->optional) ||
         (cause.error == ENODATA && property->id == TimeToEmpty);
}

}  // namespace fuelgauge
