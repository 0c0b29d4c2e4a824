// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gauge/Property.hpp"

namespace fuelgauge {

/// Builds a text in the Prometheus exposition format: families, each with its samples, whatever the
/// order in which they come.
class MetricsText {
 public:
  using Labels = std::vector<std::pair<std::string_view, std::string_view>>;

  /// The samples from now on are those of the supply of this @p name.
  void Supply(std::string name) { supply = std::move(name); }

  /// Adds a sample to the metric's family: @p number divided by ten to its decimals, exactly. A name that
  /// ends with "_total" is a counter's, any other a gauge's.
  void Add(const Metric& metric, std::int64_t number, const Labels& labels = {});

  std::string Text() const;

 private:
  struct Family {
    std::string name;
    std::string text;
  };

  std::string supply;
  std::vector<Family> families;
};

}  // namespace fuelgauge
