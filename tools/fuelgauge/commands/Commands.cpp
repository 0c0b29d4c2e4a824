// SPDX-License-Identifier: MIT
#include "commands/Commands.hpp"

namespace fuelgauge {

const std::vector<Command> Commands = {
    {"list", "Show every property", AddList},
    {"get", "Print one property's bare value", AddGet},
    {"set", "Write the lifetime record, and read it back", AddSet},
    {"reset", "Write the lifetime record's reset value, and read it back", AddReset},
    {"watch", "Show samples until Ctrl-C", AddWatch},
    {"metrics", "Print metrics for Prometheus", AddMetrics},
    {"check", "Check whether the gauge's values make sense", AddCheck},
    {"devices", "List the kernel's batteries", AddDevices},
};

}  // namespace fuelgauge
