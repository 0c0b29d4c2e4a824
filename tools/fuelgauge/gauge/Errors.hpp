// SPDX-License-Identifier: MIT
#pragma once

#include <FuelGaugeStatus.hpp>
#include <string>

namespace fuelgauge {

/// @return the name of the errno @p error, such as "ENOENT", or the number of one that no file of the
///         power_supply class was seen to answer
std::string ErrorName(int error);

/// @return @p error in words and by its name, such as "no such file (ENOENT)"
std::string ErrorText(int error);

/// @return the status of a read that failed so: NoData where files answer it to a read, else FileError
dral::FuelGaugeStatus StatusOf(int error);

}  // namespace fuelgauge
