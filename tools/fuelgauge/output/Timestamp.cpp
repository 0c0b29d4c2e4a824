// SPDX-License-Identifier: MIT
#include "output/Timestamp.hpp"

#include <array>
#include <string_view>

#include "gauge/Concat.hpp"

namespace fuelgauge {

std::timespec Now() {
  std::timespec time{};
  static_cast<void>(std::timespec_get(&time, TIME_UTC));  // it knows this base
  return time;
}

std::chrono::duration<double> SinceStart() {
  std::timespec time{};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::string Timestamp(const std::timespec& time) {
  std::tm parts{};
  ::gmtime_r(&time.tv_sec, &parts);
  std::array<char, sizeof "2026-11-25T09:30:00"> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
  return Concat(std::string_view(text.data(), length), ".",
                std::to_string(1000 + time.tv_nsec / 1000000).substr(1), "Z");
}

}  // namespace fuelgauge
