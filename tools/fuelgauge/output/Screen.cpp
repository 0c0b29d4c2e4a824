// SPDX-License-Identifier: MIT
#include "output/Screen.hpp"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iostream>
#include <limits>
#include <utility>

#include "gauge/Concat.hpp"
#include "output/Table.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

namespace {

constexpr std::size_t CourseLength = 40;
constexpr std::size_t LimitsColumns = 16;

// The few sequences that every terminal since the VT100 knows.
constexpr auto ClearLine = "\x1b[K";
constexpr auto ClearBelow = "\x1b[J";

// What a low window shows first; then the heading, and then the rest from the top.
constexpr std::array Important = {Status, StateOfCharge, VoltageNow, CurrentNow};
constexpr std::size_t HeadingRank = Important.size();

std::size_t Rank(dral::FuelGaugeProperty id) {
  const auto* const found = std::find(Important.begin(), Important.end(), id);
  return found != Important.end() ? static_cast<std::size_t>(found - Important.begin())
                                  : HeadingRank + 1;
}

// A serial console may not know its size: it says 0.
std::pair<std::size_t, std::size_t> RowsAndColumns() {
  winsize size{};
  ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size);
  return {size.ws_row > 0 ? size.ws_row : 24, size.ws_col > 0 ? size.ws_col : 80};
}

// Of those that are there; of none, the least is above the greatest.
std::pair<std::int64_t, std::int64_t> RangeOf(const Course& numbers) {
  std::int64_t least = std::numeric_limits<int>::max();
  std::int64_t greatest = std::numeric_limits<int>::min();
  for (const auto& number : numbers) {
    least = std::min<std::int64_t>(least, number.value_or(least));
    greatest = std::max<std::int64_t>(greatest, number.value_or(greatest));
  }
  return {least, greatest};
}

// The newest, at most so many, behind their limits.
std::string SparklineWithLimits(Course numbers, const Unit& unit, std::size_t most) {
  while (numbers.size() > most) {
    numbers.pop_front();
  }
  const auto [least, greatest] = RangeOf(numbers);
  if (least > greatest) {
    return "";
  }
  const std::string from = ForPeople(least, unit);
  const std::string limits = from.substr(0, from.find(' ')) + "…" + ForPeople(greatest, unit);
  return PadTo(LimitsColumns, limits) + Sparkline(numbers);
}

}  // namespace

std::string Bar(int percent, int width) {
  const int filled = std::clamp(percent, 0, 100) * width / 100;
  return Concat("[", std::string(static_cast<std::size_t>(filled), '#'),
                std::string(static_cast<std::size_t>(width - filled), '.'), "]");
}

std::string Sparkline(const Course& numbers) {
  constexpr std::array Heights = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
  const auto [least, greatest] = RangeOf(numbers);
  const std::int64_t span = std::max<std::int64_t>(greatest - least, 1);
  std::string line;
  for (const auto& number : numbers) {
    line += number ? Heights.at(static_cast<std::size_t>((*number - least) * 7 / span)) : " ";
  }
  return line;
}

std::vector<Screen::Line> Screen::Table(const std::string& time, const Readings& readings) const {
  const std::string heading = "fuelgauge watch, " + time;
  if (!readings.AnySucceeded()) {
    return {{HeadingRank, heading + ": no gauge"}};
  }
  constexpr std::size_t Before = NameColumns + ValueColumns + LimitsColumns + 1;
  const std::size_t most = std::max(RowsAndColumns().second, Before + 1) - Before;
  std::vector<Line> lines = {{HeadingRank, heading + "; Ctrl-C ends"}};
  for (const Reading& reading : readings) {
    const auto id = reading.property->id;
    std::string remark;
    if (id == StateOfCharge && reading.Succeeded()) {
      remark = Bar(*reading.Number(), 20);
    } else if (courses.contains(id)) {
      remark = SparklineWithLimits(courses.at(id), reading.property->unit, most);
    }
    if (id != LifetimeData) {
      lines.push_back({Rank(id), Row(reading.property->name, reading.ForPeople(), remark)});
    }
  }
  return lines;
}

void Screen::Sample(const std::string& time, const Readings& readings) {
  for (auto& [id, course] : courses) {
    course.push_back(readings[id].Number());
    if (course.size() > CourseLength) {
      course.pop_front();
    }
  }
  table = Table(time, readings);
  Paint({});
}

void Screen::Notice(const std::string& text) {
  Sink::Notice(text);
  drawn.clear();
}

// A terminal that has wrapped lines joins them again when it is wide enough, unless they are cleared.
void Screen::Redraw(bool shellWasThere) {
  if (shellWasThere) {
    drawn.clear();
  }
  Paint(ClearBelow);
}

void Screen::Paint(std::string_view first) {
  const auto [rows, columns] = RowsAndColumns();
  std::size_t above = 0;  // rows: a window made narrower has wrapped the lines that it holds
  for (const std::string& line : drawn) {
    above += (std::max<std::size_t>(Columns(line), 1) - 1) / columns + 1;
  }
  std::vector<const Line*> shown;
  for (const Line& line : table) {
    shown.push_back(&line);
  }
  std::stable_sort(shown.begin(), shown.end(),
                   [](const Line* left, const Line* right) { return left->rank < right->rank; });
  shown.resize(std::min(shown.size(), std::max<std::size_t>(rows - 1, 1)));
  std::sort(shown.begin(), shown.end());

  std::string frame = Concat(above > 0 ? Concat("\r\x1b[", above, "A") : "", first);
  drawn.clear();
  for (const Line* line : shown) {
    drawn.emplace_back(CutTo(columns - 1, line->text));  // some wrap at the last column
    frame += Concat(drawn.back(), ClearLine, "\n");
  }
  std::cout << frame << ClearBelow << std::flush;
}

}  // namespace fuelgauge
