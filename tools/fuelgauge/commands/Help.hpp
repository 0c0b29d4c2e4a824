// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace fuelgauge {

/// @return the help of @p app, in a layout that does not change with CLI11's version
std::string Help(const CLI::App* app, const std::string& name, CLI::AppFormatMode mode);

}  // namespace fuelgauge
