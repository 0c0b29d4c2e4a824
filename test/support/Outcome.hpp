// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <PropertyValue.hpp>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>
#include <utility>
#include <variant>

// What a call answered, as one line of text, so that tables can hold it: "0 int 4200" for a status and
// its value, "2 EIO int 0" when it left an error in errno. To be asked before errno changes.

/// @return the record's binary form
inline std::string Bytes(const dral::LifetimeData& data) {
  std::ostringstream stream;
  stream << data;
  return stream.str();
}

inline std::string Describe(dral::FuelGaugeStatus status) {
  const char* const error = errno != 0 ? ::strerrorname_np(errno) : "";
  return std::to_string(static_cast<unsigned>(status)) + (*error != 0 ? " " : "") + error;
}

inline std::string Describe(const std::pair<dral::FuelGaugeStatus, dral::PropertyValue>& answer) {
  const std::string status = Describe(answer.first);
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::boolalpha << status
       << std::array{" string ", " int ", " uint ", " bool ", " record "}[answer.second.index()];
  std::visit([&text](const auto& value) { text << value; }, answer.second);
  return text.str();
}

/// @return how many files this process has open
inline std::ptrdiff_t OpenFiles() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}
