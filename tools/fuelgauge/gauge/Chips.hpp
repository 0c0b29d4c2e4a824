// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace fuelgauge {

/// @return whether @p name begins as the names of this family's chips do, and those of their supplies
bool IsChip(std::string_view name);

/// @param expected whether there should be a chip: then it is also said that there is none, or that this
///        cannot be told
/// @return of a chip without a supply, how far it has come on the way to one, and what to do next; empty
///         when each has its supply
std::string ChipWithoutSupply(bool expected);

}  // namespace fuelgauge
