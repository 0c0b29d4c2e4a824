// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "gauge/Readings.hpp"

namespace fuelgauge {

/// What a watch comes to: the range and the mean of what it saw, and the charge moved.
class Summary {
 public:
  using Seconds = std::chrono::duration<double>;

  /// A step far beyond @p interval is a gap: the program or the whole device stood still.
  explicit Summary(Seconds interval) : longest(3 * interval + Seconds(10)) {}

  /// Adds the readings of @p time, counted from any moment.
  void Add(Seconds time, const Readings& readings);

  /// @return lines for people; none while nothing was read
  std::vector<std::string> Lines() const;

 private:
  struct Range {
    int least = std::numeric_limits<int>::max();
    int greatest = std::numeric_limits<int>::min();
    std::int64_t sum = 0;
    std::int64_t count = 0;
  };

  void AddCurrent(Seconds time, std::optional<int> current);

  Seconds longest;
  Seconds first{};
  Seconds last{};
  Seconds missed{};  // in gaps
  std::int64_t samples = 0;
  std::int64_t gaps = 0;
  bool inGap = false;
  std::optional<int> lastCurrent;
  bool measured = false;                    // the current, at least once
  double charge = 0;                        // µAs
  std::map<const Property*, Range> ranges;  // in the order of their table
};

}  // namespace fuelgauge
