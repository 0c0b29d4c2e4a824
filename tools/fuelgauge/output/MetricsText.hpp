// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fuelgauge {

/// Builds a text in the Prometheus exposition format: families, each with its samples.
class MetricsText {
 public:
  using Labels = std::vector<std::pair<std::string_view, std::string>>;

  /// Begins a family, "fuelgauge_" and @p name; @p type is "gauge" or "counter".
  void Family(std::string_view name, std::string_view type, std::string_view help);

  /// Adds a sample to the family: @p number divided by ten to the @p decimals, exactly.
  void Sample(std::int64_t number, int decimals = 0, const Labels& labels = {});

  const std::string& Text() const { return text; }

 private:
  std::string family;
  std::string text;
};

}  // namespace fuelgauge
