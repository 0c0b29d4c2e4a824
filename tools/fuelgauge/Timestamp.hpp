// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>

/// @return the time in UTC and to the millisecond, as "2026-11-25T09:30:00.125Z"
std::string Timestamp(std::chrono::system_clock::time_point time);
