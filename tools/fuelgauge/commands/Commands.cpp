// SPDX-License-Identifier: MIT
#include "commands/Commands.hpp"

namespace fuelgauge {

const std::vector<Command> Commands = {
    {"list", "Show every property", AddList},
    {"get", "Print one property's bare value", AddGet},
    {"set", "Write the lifetime record, and read it back", AddSet},
    {"reset", "Write the lifetime record's reset value, and read it back", AddReset},
    {"watch", "Show a sample again and again", AddWatch},
    {"metrics", "Print what Prometheus reads", AddMetrics},
    {"check", "Tell whether the gauge makes sense", AddCheck},
    {"devices", "List the batteries that the kernel has", AddDevices},
};

std::string NotEmpty(const std::string& name) {
  return name.empty() ? "the name is empty" : "";
}

}  // namespace fuelgauge
