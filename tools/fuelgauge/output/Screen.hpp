// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "readings/Readings.hpp"

namespace fuelgauge {

/// The table that `watch` redraws in place on a terminal, with a bar for the charge and the recent
/// course of voltage and current. It takes the terminal over while it lives.
class Screen {
 public:
  Screen();
  /// Gives the terminal back and leaves the last table on it.
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  void Draw(const std::string& time, const Readings& readings);

 private:
  using Course = std::deque<std::optional<int>>;

  std::vector<std::string> Lines(const std::string& time, const Readings& readings) const;

  Course voltages;
  Course currents;
  std::string lastSeen;
  std::vector<std::string> lines;
};

/// @return a bar of @p width characters, filled by @p percent
std::string Bar(int percent, int width);

/// @return a character for each number, its height between the least and the greatest of them; a
///         blank where there is none
std::string Sparkline(const std::deque<std::optional<int>>& numbers);

}  // namespace fuelgauge
