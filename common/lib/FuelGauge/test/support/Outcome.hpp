// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <PropertyValue.hpp>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

// How a call ended, as one line of text, so that tables can hold it: "0 int 4200" for a status and
// its value, "invalid_argument stoi" for an exception and its text.

/// @return the record's binary form
inline std::string Bytes(const dral::LifetimeData& data) {
  std::ostringstream stream;
  stream << data;
  return stream.str();
}

struct DescribeValue {
  std::string operator()(const std::string& value) const { return "string " + value; }
  std::string operator()(int value) const { return "int " + std::to_string(value); }
  std::string operator()(unsigned int value) const { return "uint " + std::to_string(value); }
  std::string operator()(bool value) const { return value ? "bool true" : "bool false"; }
  std::string operator()(const dral::LifetimeData& value) const { return "record " + Bytes(value); }
};

inline std::string Describe(dral::FuelGaugeStatus status) {
  return std::to_string(static_cast<unsigned>(status));
}

inline std::string Describe(const std::pair<dral::FuelGaugeStatus, dral::PropertyValue>& answer) {
  return Describe(answer.first) + " " + std::visit(DescribeValue{}, answer.second);
}

template <typename Call>
std::string Outcome(Call call) {
  try {
    return Describe(call());
  } catch (const std::invalid_argument& exception) {
    return std::string("invalid_argument ") + exception.what();
  } catch (const std::out_of_range& exception) {
    return std::string("out_of_range ") + exception.what();
  } catch (const std::logic_error& exception) {
    return std::string("logic_error ") + exception.what();
  } catch (const std::bad_variant_access&) {
    return "bad_variant_access";
  }
}
