// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include "gauge/Readings.hpp"

namespace fuelgauge {

/// JSON objects keep their members in the order of the properties and fields.
using Json = nlohmann::ordered_json;

/// @return `{"status": …, "value": …}`; unless the status is Success the value is null, and there is
///         a "reason"
Json ToJson(const Reading& reading);

/// @return an object with a member for each reading
Json ToJson(const Readings& readings);

/// Prints @p json, readable and with a newline; bytes that are not UTF-8 are replaced.
void Print(const Json& json);

}  // namespace fuelgauge
