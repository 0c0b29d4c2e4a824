// SPDX-License-Identifier: MIT
#include "output/Screen.hpp"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>

#include "output/Table.hpp"

namespace fuelgauge {

using dral::FuelGaugeProperty;

namespace {

constexpr std::size_t CourseLength = 40;

// The few sequences that every terminal since the VT220 knows. Lines are cut, not wrapped.
constexpr auto TakeOver = "\x1b[?1049h\x1b[?25l\x1b[?7l";
constexpr auto GiveBack = "\x1b[?7h\x1b[?25h\x1b[?1049l";
constexpr auto ToTop = "\x1b[H";
constexpr auto ClearLine = "\x1b[K";
constexpr auto ClearBelow = "\x1b[J";

std::size_t Rows() {
  winsize size{};
  return ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 1 ? size.ws_row : 24U;
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

Screen::Screen() {
  std::cout << TakeOver;
}

Screen::~Screen() {
  std::cout << GiveBack;
  for (const std::string& line : lines) {
    std::cout << line << "\n";
  }
  std::cout.flush();
}

std::vector<std::string> Screen::Lines(const std::string& time, const Readings& readings) const {
  std::vector<std::string> table = {"fuelgauge watch, " + time};
  if (readings.AnySucceeded()) {
    table.emplace_back();
  } else {
    table.push_back(lastSeen.empty() ? "NO GAUGE: nothing can be read"
                                     : "NO GAUGE: nothing can be read since " + lastSeen);
  }
  for (const Reading& reading : readings) {
    std::string remark;
    if (reading.property->id == FuelGaugeProperty::StateOfCharge && reading.Succeeded()) {
      remark = Bar(*reading.Number(), 20);
    } else if (reading.property->id == FuelGaugeProperty::VoltageNow) {
      remark = Sparkline(voltages);
    } else if (reading.property->id == FuelGaugeProperty::CurrentNow) {
      remark = Sparkline(currents);
    }
    if (reading.property->id != FuelGaugeProperty::LifetimeData) {
      table.push_back(Row(reading.property->name, reading.ForPeople(), remark));
    }
  }
  table.emplace_back("Ctrl-C ends");
  return table;
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
  if (readings.AnySucceeded()) {
    lastSeen = time;
  }
  lines = Lines(time, readings);
  std::cout << ToTop;
  const std::size_t shown = std::min(lines.size(), Rows());
  for (std::size_t row = 0; row < shown; ++row) {
    std::cout << (row > 0 ? "\n" : "") << lines[row] << ClearLine;
  }
  std::cout << ClearBelow << std::flush;
}

}  // namespace fuelgauge
