// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
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
    const Property* property;
    int least;
    int greatest;
    std::int64_t sum;
    std::int64_t count;

    std::string Row() const;
  };

  void AddNumber(const Reading& reading);
  void AddCurrent(Seconds time, const Reading& reading);

  Seconds longest;
  Seconds first{};
  Seconds last{};
  Seconds missed{};  // in gaps
  std::int64_t samples = 0;
  std::int64_t gaps = 0;
  bool inGap = false;
  std::optional<int> lastCurrent;
  bool measured = false;  // the current, at least once
  double charge = 0;      // µAs
  std::vector<Range> ranges;
};

}  // namespace fuelgauge
