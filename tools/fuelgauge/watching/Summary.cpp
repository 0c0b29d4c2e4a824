// SPDX-License-Identifier: MIT
#include "watching/Summary.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "gauge/Units.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

// Such as "1 h 0 min 5 s".
std::string InWords(Summary::Seconds time) {
  const std::int64_t seconds = std::llround(time.count());
  std::string text;
  if (seconds >= 3600) {
    text.append(std::to_string(seconds / 3600)).append(" h ");
  }
  if (seconds >= 60) {
    text.append(std::to_string(seconds / 60 % 60)).append(" min ");
  }
  return text.append(std::to_string(seconds % 60)).append(" s");
}

std::string Count(std::int64_t number, const std::string& noun) {
  return std::to_string(number).append(" ").append(noun).append(number == 1 ? "" : "s");
}

}  // namespace

void Summary::Add(Seconds time, const Readings& readings) {
  for (const auto id : {VoltageNow, CurrentNow, StateOfCharge, Temperature}) {
    AddNumber(readings[id]);
  }
  AddCurrent(time, readings[CurrentNow]);
}

void Summary::AddNumber(const Reading& reading) {
  const auto number = reading.Number();
  if (!number) {
    return;
  }
  auto range = std::find_if(ranges.begin(), ranges.end(), [&reading](const Range& each) {
    return each.property == reading.property;
  });
  if (range == ranges.end()) {
    range = ranges.insert(range, {reading.property, *number, *number, 0, 0});
  }
  range->least = std::min(range->least, *number);
  range->greatest = std::max(range->greatest, *number);
  range->sum += *number;
  ++range->count;
}

void Summary::AddCurrent(Seconds time, const Reading& reading) {
  const auto current = reading.Number();
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

std::string Summary::Range::Row() const {
  const double mean = static_cast<double>(sum) / static_cast<double>(count);
  return std::string(property->name)
      .append(": ")
      .append(ForPeople(least, property->unit))
      .append(" to ")
      .append(ForPeople(greatest, property->unit))
      .append(", mean ")
      .append(ForPeople(std::llround(mean), property->unit));
}

std::vector<std::string> Summary::Lines() const {
  if (ranges.empty()) {
    return {};
  }
  std::vector<std::string> lines = {
      Count(samples, "sample").append(" in ").append(InWords(last - first))};
  for (const Range& range : ranges) {
    lines.push_back(range.Row());
  }
  if (!measured) {
    return lines;
  }
  const std::int64_t tenths = std::llround(charge / 360000);
  std::string moved = "charge moved: " + ForPeople(tenths, Unit::TenthMilliampereHour);
  if (gaps > 0) {
    moved.append(", not counting ")
        .append(Count(gaps, "gap"))
        .append(" of ")
        .append(InWords(missed))
        .append(gaps > 1 ? " in all" : "")
        .append(" in which the current was unknown");
  }
  lines.push_back(std::move(moved));
  return lines;
}

}  // namespace fuelgauge
