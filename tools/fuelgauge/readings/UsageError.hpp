// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace fuelgauge {

/// The user asked for something that cannot be; the text names the wrong word and the way out.
class UsageError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace fuelgauge
