// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <ctime>
#include <string>

namespace fuelgauge {

/// @return the system's time. The standard library's own clock has 32 bits on a 32-bit machine, and
///         is wrong after the year 2037.
std::timespec Now();

/// @return the time since the device started, its sleep included; nobody sets this clock
std::chrono::duration<double> SinceStart();

/// @return the time in UTC and to the millisecond, as "2026-11-25T09:30:00.125Z"
std::string Timestamp(const std::timespec& time);

}  // namespace fuelgauge
