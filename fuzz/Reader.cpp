// SPDX-License-Identifier: MIT
// A file of any bytes, read as each type of text: numbers are the standard library's in the C locale.
#include <stdexcept>
#include <string>
#include <typeinfo>
#include <utility>

#include "Readable.hpp"
#include "Target.hpp"
#include "support/TemporaryFolder.hpp"

using namespace dral;

namespace {

// What came, or the kind and the text of the exception.
template <typename Read>
auto Outcome(Read read) -> std::pair<std::string, decltype(read())> try {
  return {"", read()};
} catch (const std::logic_error& error) {
  return {std::string(typeid(error).name()) + error.what(), {}};
}

}  // namespace

void Target(const std::string& input) {
  static const TemporaryFolder folder;
  PropertyMap map;
  map[FuelGaugeProperty::Name].location = folder.Write("file", input);
  const auto get = [&map](auto hint) {
    auto [status, value] = Readable(FuelGaugeProperty::Name, map).Get(hint);
    return std::pair(status == FuelGaugeStatus::Success, std::get<decltype(hint)>(value));
  };
  std::string text = input;
  std::erase(text, '\n');
  Require(get(std::string()) == std::pair(!input.empty(), text));
  const auto number = [&input] { return std::stoi(input); };
  const auto unsignedNumber = [&input] {
    const unsigned long value = std::stoul(input);
    static_assert(sizeof(value) == 8, "the oracle needs a 64-bit host");
    return value <= 0xFFFFFFFF ? static_cast<unsigned int>(value) : throw std::out_of_range(input);
  };
  Require(Outcome([&] { return get(0); }) == Outcome([&] { return std::pair(true, number()); }));
  Require(Outcome([&] { return get(0U); }) ==
          Outcome([&] { return std::pair(true, unsignedNumber()); }));
  Require(Outcome([&] { return get(false); }) ==
          Outcome([&] { return std::pair(true, number() == 1); }));
}
