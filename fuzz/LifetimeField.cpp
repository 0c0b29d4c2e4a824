// SPDX-License-Identifier: MIT
// The tool's FIELD=VALUE: an assignment that is taken shows in its field, one that is refused changes
// nothing.
#include "readings/LifetimeField.hpp"

#include "Target.hpp"
#include "readings/UsageError.hpp"

using namespace fuelgauge;

void Target(const std::string& input) {
  dral::LifetimeData data;
  try {
    Assign(data, input);
    const std::size_t equals = input.find('=');
    bool shown = false;
    for (const LifetimeField& field : LifetimeFields) {
      shown |= field.name == input.substr(0, equals) &&
               field.Value(data) == std::stoi(input.substr(equals + 1));
    }
    Require(shown);
  } catch (const UsageError&) {
    Require(data.ToString() == dral::LifetimeData{}.ToString());
  }
}
