// SPDX-License-Identifier: MIT
#include "output/Timestamp.hpp"

#include <array>
#include <ctime>

namespace fuelgauge {

std::chrono::system_clock::time_point Now() {
  std::timespec time{};
  static_cast<void>(std::timespec_get(&time, TIME_UTC));  // it knows this base
  using std::chrono::system_clock;
  return system_clock::time_point(std::chrono::floor<system_clock::duration>(
      std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec)));
}

std::chrono::duration<double> SinceStart() {
  std::timespec time{};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::string Timestamp(std::chrono::system_clock::time_point time) {
  using std::chrono::milliseconds;
  const auto sinceEpoch = std::chrono::floor<milliseconds>(time.time_since_epoch());
  const auto second = std::chrono::floor<std::chrono::seconds>(sinceEpoch);
  const std::time_t whole = second.count();
  std::tm parts{};
  ::gmtime_r(&whole, &parts);
  std::array<char, sizeof "2026-11-25T09:30:00"> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &parts);
  const std::string fraction = std::to_string(1000 + (sinceEpoch - second).count());
  return std::string(text.data(), length).append(".").append(fraction, 1).append("Z");
}

}  // namespace fuelgauge
