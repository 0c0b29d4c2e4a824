// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace fuelgauge {

// The words that the kernel's power_supply class has.
constexpr std::array<std::string_view, 7> TechnologyWords = {"Unknown", "NiMH", "Li-ion", "Li-poly",
                                                             "LiFe",    "NiCd", "LiMn"};
constexpr std::array<std::string_view, 5> StatusWords = {"Unknown", "Charging", "Discharging",
                                                         "Not charging", "Full"};
constexpr std::array<std::string_view, 6> LevelWords = {"Unknown", "Critical", "Low",
                                                        "Normal",  "High",     "Full"};
constexpr std::array<std::string_view, 15> HealthWords = {"Unknown",
                                                          "Good",
                                                          "Overheat",
                                                          "Dead",
                                                          "Over voltage",
                                                          "Unspecified failure",
                                                          "Cold",
                                                          "Watchdog timer expire",
                                                          "Safety timer expire",
                                                          "Over current",
                                                          "Calibration required",
                                                          "Warm",
                                                          "Cool",
                                                          "Hot",
                                                          "No battery"};

}  // namespace fuelgauge
