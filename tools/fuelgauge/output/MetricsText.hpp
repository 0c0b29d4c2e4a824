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
  using Labels = std::vector<std::pair<std::string_view, std::string>>;

  /// The samples from now on are those of the supply of this @p name.
  void Supply(std::string name) { supply = std::move(name); }

  /// Begins the metric's family, or goes on with it. A name that ends with "_total" is a counter's, any
  /// other a gauge's.
  void Family(const Metric& metric);

  /// Adds a sample to the family: @p number divided by ten to the metric's decimals, exactly.
  void Sample(std::int64_t number, const Labels& labels = {});

  std::string Text() const;

 private:
  struct Block {
    std::string name;
    std::size_t decimals;
    std::string text;
  };

  std::string supply;
  std::vector<Block> families;
  std::size_t family = 0;  // the one that samples go to
};

}  // namespace fuelgauge
