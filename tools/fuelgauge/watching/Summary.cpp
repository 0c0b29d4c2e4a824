// SPDX-License-Identifier: MIT
#include "watching/Summary.hpp"

#include <algorithm>
#include <cmath>

#include "gauge/Concat.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

// Such as "1 h 0 min 5 s".
std::string InWords(Summary::Seconds time) {
  const std::int64_t seconds = std::llround(time.count());
  return (seconds >= 3600 ? Concat(seconds / 3600, " h ") : "") +
         (seconds >= 60 ? Concat(seconds / 60 % 60, " min ") : "") + Concat(seconds % 60, " s");
}

std::string Count(std::int64_t number, std::string_view noun) {
  return Concat(number, " ", noun, number == 1 ? "" : "s");
}

}  // namespace

void Summary::Add(Seconds time, const Readings& readings) {
  for (const auto id : {VoltageNow, CurrentNow, StateOfCharge, Temperature}) {
    if (const auto number = readings[id].Number()) {
      Range& range = ranges[readings[id].property];
      range.least = std::min(range.least, *number);
      range.greatest = std::max(range.greatest, *number);
      range.sum += *number;
      ++range.count;
    }
  }
  AddCurrent(time, readings[CurrentNow].Number());
}

void Summary::AddCurrent(Seconds time, std::optional<int> current) {
  const Seconds step = time - last;
  if (samples == 0) {
    first = time;
  } else if (current && lastCurrent && step <= longest) {
    charge += (0.5 * *current + 0.5 * *lastCurrent) * step.count();
    inGap = false;
  } else {
    missed += step;
    gaps += inGap ? 0 : 1;
    inGap = true;
  }
  ++samples;
  last = time;
  lastCurrent = current;
  measured = measured || current;
}

std::vector<std::string> Summary::Lines() const {
  if (ranges.empty()) {
    return {};
  }
  std::vector<std::string> lines = {
      Concat(Count(samples, "sample"), " in ", InWords(last - first))};
  for (const auto& [property, range] : ranges) {
    const Unit& unit = property->unit;
    const double mean = static_cast<double>(range.sum) / static_cast<double>(range.count);
    lines.push_back(Concat(property->name, ": ", ForPeople(range.least, unit), " to ",
                           ForPeople(range.greatest, unit), ", mean ",
                           ForPeople(std::llround(mean), unit)));
  }
  if (measured) {
    const std::int64_t tenths = std::llround(charge / 360000);
    lines.push_back(
        Concat("charge moved: ", ForPeople(tenths, units::TenthMilliampereHour),
               gaps == 0 ? ""
                         : Concat(", not counting ", Count(gaps, "gap"), " of ", InWords(missed),
                                  gaps > 1 ? " in all" : "", " in which the current was unknown")));
  }
  return lines;
}

}  // namespace fuelgauge
