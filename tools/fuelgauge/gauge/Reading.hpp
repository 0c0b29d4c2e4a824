// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <PropertyValue.hpp>
#include <optional>
#include <string>
#include <variant>

#include "gauge/Property.hpp"

namespace fuelgauge {

/// One property as it was read.
struct Reading {
  const Property* property;
  dral::FuelGaugeStatus status;
  dral::PropertyValue value;
  int error = 0;             ///< errno after the read; 0 unless a system call failed
  std::string refusal = {};  ///< why the file was not even opened, in words
  std::string text = {};     ///< what the file holds, when that is no number
  bool otherDriver = false;  ///< one that may lack any file, and has other conventions

  bool Succeeded() const { return status == dral::FuelGaugeStatus::Success; }

  /// @return the number, a flag as 0 or 1; none when it was not read or is no number
  std::optional<int> Number() const;

  /// @return the text, or the record: it lives as long as the reading. Null when the property was not read,
  ///         or is something else.
  const std::string* Text() const { return As<std::string>(); }
  const dral::LifetimeData* Record() const { return As<dral::LifetimeData>(); }

  /// @return the value as programs take it, such as "3786000", "true" or "Full"; nothing when it was not
  ///         read, or for the record
  std::string Bare() const;

  /// @return the value as people say it, such as "3.786 V", "yes" or "Full"; "-" when it was not
  ///         read, nothing for the record
  std::string ForPeople() const;

  /// @return why it was not read, in words for people
  std::string Reason() const;

  /// @return whether a gauge in order may fail to give this: a file that its driver may lack, an
  ///         estimate of the time to empty, or what another driver has not
  bool MayBeMissing() const;

 private:
  template <typename T>
  const T* As() const {
    return Succeeded() ? std::get_if<T>(&value) : nullptr;
  }
};

}  // namespace fuelgauge
