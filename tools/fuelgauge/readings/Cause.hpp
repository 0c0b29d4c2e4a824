// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <string>

namespace fuelgauge {

/// Why a value is missing: what the system answers for its file.
struct Cause {
  bool opened = false;
  int error = 0;      ///< the errno of opening or reading it; 0: it was read
  std::string text;   ///< what was read, which is then not the value asked for
  std::string unfit;  ///< why it was not even opened, in words

  /// Asks for the file at @p path, now.
  static Cause Of(const std::string& path);

  /// @return the status of a read that ends so, whatever the type: the library has but one for a number
  dral::FuelGaugeStatus Status(bool record) const;
};

/// @return why the file at @p path cannot be opened for writing, in words
std::string WriteRefusal(const std::string& path);

/// @return its name, such as "ENOENT", or the number of one that no such file was seen to answer
std::string ErrorName(int error);

/// @return @p error in words and by its name, such as "no such file (ENOENT)"
std::string ErrorText(int error);

}  // namespace fuelgauge
