// SPDX-License-Identifier: MIT
// The reader's numbers against those of the standard library, which on a 64-bit host in the C locale
// are the same.
#include <algorithm>
#include <stdexcept>
#include <string>

#include "Decimal.hpp"
#include "Target.hpp"

namespace {

// The number, or the exception's kind and text.
template <typename Convert>
std::string Outcome(Convert convert) {
  try {
    return std::to_string(convert());
  } catch (const std::invalid_argument& error) {
    return std::string("invalid ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("range ") + error.what();
  }
}

}  // namespace

void Target(const std::string& input) {
  static_assert(sizeof(unsigned long) == 8, "the oracle needs a 64-bit host");
  Require(Outcome([&] { return dral::DecimalToInt32(input); }) ==
          Outcome([&] { return std::stoi(input); }));
  Require(Outcome([&] { return dral::DecimalToUint64(input); }) ==
          Outcome([&] { return std::stoul(input); }));
}
