// SPDX-License-Identifier: MIT
#include "output/Screen.hpp"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>

#include "output/Columns.hpp"
#include "output/Table.hpp"

using dral::FuelGaugeProperty;

namespace fuelgauge {
namespace {

constexpr std::size_t CourseLength = 40;

// The few sequences that every terminal since the VT100 knows.
constexpr auto ClearLine = "\x1b[K";
constexpr auto ClearBelow = "\x1b[J";

// What a low window shows first; then the heading, and then the rest from the top.
constexpr std::array Important = {FuelGaugeProperty::Status, FuelGaugeProperty::StateOfCharge,
                                  FuelGaugeProperty::VoltageNow, FuelGaugeProperty::CurrentNow};
constexpr std::size_t HeadingRank = Important.size();

std::size_t Rank(FuelGaugeProperty id) {
  const auto* const found = std::find(Important.begin(), Important.end(), id);
  return found != Important.end() ? static_cast<std::size_t>(found - Important.begin())
                                  : HeadingRank + 1;
}

struct Window {
  std::size_t rows;
  std::size_t columns;
};

// A serial console may not know its size: it says 0.
Window WindowNow() {
  winsize size{};
  ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size);
  return {size.ws_row > 0 ? size.ws_row : 24U, size.ws_col > 0 ? size.ws_col : 80U};
}

}  // namespace

std::string Bar(int percent, int width) {
  const int filled = std::clamp(percent, 0, 100) * width / 100;
  std::string bar = "[";
  bar.append(static_cast<std::size_t>(filled), '#');
  bar.append(static_cast<std::size_t>(width - filled), '.');
  return bar.append("]");
}

std::string Sparkline(const std::deque<std::optional<int>>& numbers) {
  constexpr std::array Heights = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};
  std::int64_t least = 0;
  std::int64_t greatest = 0;
  bool any = false;
  for (const auto& number : numbers) {
    if (number) {
      least = any ? std::min<std::int64_t>(least, *number) : *number;
      greatest = any ? std::max<std::int64_t>(greatest, *number) : *number;
      any = true;
    }
  }
  std::string line;
  for (const auto& number : numbers) {
    if (!number) {
      line += " ";
    } else {
      const std::int64_t span = std::max<std::int64_t>(greatest - least, 1);
      line += Heights.at(static_cast<std::size_t>((*number - least) * 7 / span));
    }
  }
  return line;
}

std::vector<Screen::Line> Screen::Table(const std::string& time, const Readings& readings) const {
  const std::string heading = "fuelgauge watch, " + time;
  if (!readings.AnySucceeded()) {
    return {{HeadingRank, heading + ": no gauge"}};
  }
  std::vector<Line> lines = {{HeadingRank, heading + "; Ctrl-C ends"}};
  for (const Reading& reading : readings) {
    const FuelGaugeProperty id = reading.property->id;
    std::string remark;
    if (id == FuelGaugeProperty::StateOfCharge && reading.Succeeded()) {
      remark = Bar(*reading.Number(), 20);
    } else if (id == FuelGaugeProperty::VoltageNow) {
      remark = Sparkline(voltages);
    } else if (id == FuelGaugeProperty::CurrentNow) {
      remark = Sparkline(currents);
    }
    if (id != FuelGaugeProperty::LifetimeData) {
      lines.push_back({Rank(id), Row(reading.property->name, reading.ForPeople(), remark)});
    }
  }
  return lines;
}

void Screen::Draw(const std::string& time, const Readings& readings) {
  const auto add = [&readings](Course& course, FuelGaugeProperty id) {
    course.push_back(readings.Number(id));
    if (course.size() > CourseLength) {
      course.pop_front();
    }
  };
  add(voltages, FuelGaugeProperty::VoltageNow);
  add(currents, FuelGaugeProperty::CurrentNow);
  table = Table(time, readings);
  Paint({});
}

// A terminal that has wrapped lines joins them again when it is wide enough, unless they are cleared.
void Screen::Redraw() {
  Paint(ClearBelow);
}

void Screen::Paint(std::string_view first) {
  const Window window = WindowNow();
  std::size_t above = 0;  // rows: a window made narrower has wrapped the lines that it holds
  for (const std::string& line : drawn) {
    above += (std::max<std::size_t>(Columns(line), 1) - 1) / window.columns + 1;
  }
  std::vector<const Line*> shown;
  for (const Line& line : table) {
    shown.push_back(&line);
  }
  std::stable_sort(shown.begin(), shown.end(),
                   [](const Line* left, const Line* right) { return left->rank < right->rank; });
  shown.resize(std::min(shown.size(), std::max<std::size_t>(window.rows - 1, 1)));
  std::sort(shown.begin(), shown.end());

  std::string frame = above > 0 ? "\r\x1b[" + std::to_string(above) + "A" : "";
  frame += first;
  drawn.clear();
  for (const Line* line : shown) {
    drawn.emplace_back(CutTo(window.columns - 1, line->text));  // some wrap at the last column
    frame.append(drawn.back()).append(ClearLine).append("\n");
  }
  std::cout << frame << ClearBelow << std::flush;
}

}  // namespace fuelgauge
