// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace fuelgauge {

// The words of the kernel's power_supply class, as of Linux 7.3
// (Documentation/ABI/testing/sysfs-class-power).
constexpr auto TechnologyWords =
    std::to_array<std::string_view>({"Unknown", "NiMH", "Li-ion", "Li-poly", "LiFe", "NiCd", "LiMn",
                                     "PbAc", "NiZn", "RAM", "ZnAr"});
constexpr auto StatusWords =
    std::to_array<std::string_view>({"Unknown", "Charging", "Discharging", "Not charging", "Full"});
constexpr auto LevelWords =
    std::to_array<std::string_view>({"Unknown", "Critical", "Low", "Normal", "High", "Full"});
constexpr auto HealthWords = std::to_array<std::string_view>(
    {"Unknown", "Good", "Overheat", "Dead", "Over voltage", "Under voltage", "Unspecified failure",
     "Cold", "Watchdog timer expire", "Safety timer expire", "Over current", "Calibration required",
     "Warm", "Cool", "Hot", "No battery", "Blown fuse", "Cell imbalance"});

}  // namespace fuelgauge
