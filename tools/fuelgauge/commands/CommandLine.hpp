// SPDX-License-Identifier: MIT
#pragma once

#include "gauge/ToolError.hpp"

namespace fuelgauge {

/// Does what the words of the command line ask for. Whatever goes wrong, it says so on standard error.
ExitStatus RunCommandLine(int argc, char** argv);

}  // namespace fuelgauge
