// SPDX-License-Identifier: MIT
#include "output/MetricsText.hpp"

#include <gtest/gtest.h>

#include <tuple>

namespace fuelgauge {
namespace {

TEST(MetricsText, NumbersAreExact) {
  const std::tuple<std::int64_t, std::size_t, std::string> cases[] = {
      {1, 6, "0.000001"}, {0, 6, "0"},          {-5, 1, "-0.5"},
      {100, 2, "1"},      {65535, 2, "655.35"}, {-2147483648LL * 36, 4, "-7730941.1328"},
  };
  for (const auto& [number, decimals, digits] : cases) {
    MetricsText text;
    text.Add({"x_volts", "X.", decimals}, number);
    EXPECT_EQ(text.Text(),
              "# HELP fuelgauge_x_volts X.\n# TYPE fuelgauge_x_volts gauge\n"
              "fuelgauge_x_volts{power_supply=\"\"} " +
                  digits + "\n");
  }
}

TEST(MetricsText, LabelsAreEscapedAndUtf8) {
  MetricsText text;
  text.Add({"x", "X."}, 1, {{"a", "q\"b\\n\nµ"}, {"b", "\xff\xc3(\t"}});
  EXPECT_EQ(text.Text(),
            "# HELP fuelgauge_x X.\n# TYPE fuelgauge_x gauge\n"
            "fuelgauge_x{power_supply=\"\",a=\"q\\\"b\\\\n\\\\u000aµ\",b=\"\uFFFD\uFFFD("
            "\\\\u0009\"} 1\n");
}

}  // namespace
}  // namespace fuelgauge
