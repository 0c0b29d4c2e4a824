// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/Sink.hpp"

namespace fuelgauge {

/// The last numbers of a property, the newest last; none where it was not read.
using Course = std::deque<std::optional<int>>;

/// The table that `watch` draws on a terminal again and again in the same place, with a bar for the
/// charge and the recent course of voltage and current. It changes nothing that would have to be
/// restored: between two drawings the cursor waits below the table, whatever ends the program.
class Screen : public Sink {
 public:
  void Sample(const std::string& time, const Readings& readings) override;

  /// Leaves the last table where it is: the next one comes below the text.
  void Notice(const std::string& text) override;

  /// Draws the last table once more, to fit the window as it is now.
  void Redraw(bool shellWasThere) override;

 private:
  struct Line {
    std::size_t rank;  // a low window shows those of the lowest
    std::string text;
  };

  void Paint(std::string_view first);
  std::vector<Line> Table(const std::string& time, const Readings& readings) const;

  std::map<dral::FuelGaugeProperty, Course> courses = {{dral::FuelGaugeProperty::VoltageNow, {}},
                                                       {dral::FuelGaugeProperty::CurrentNow, {}}};
  std::vector<Line> table;
  std::vector<std::string> drawn;
};

/// @return a bar of @p width characters, filled by @p percent
std::string Bar(int percent, int width);

/// @return a character for each number, its height between the least and the greatest of them; a
///         blank where there is none
std::string Sparkline(const Course& numbers);

}  // namespace fuelgauge
