// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ctime>

#include "output/LineSink.hpp"
#include "output/Screen.hpp"
#include "output/Table.hpp"
#include "output/Text.hpp"
#include "output/Timestamp.hpp"

// Stand before the C library's: the system's time is in the year 2040, and so is that since its start.
extern "C" int timespec_get(timespec* time, int base) noexcept {
  time->tv_sec = 2208988800;
  time->tv_nsec = 125000000;
  return base;
}
extern "C" int clock_gettime(clockid_t /*clock*/, timespec* time) noexcept {
  return ::timespec_get(time, 0);
}

using namespace fuelgauge;

TEST(Output, PaddingAndCutsCountColumnsNotBytes) {
  EXPECT_EQ(PadTo(4, "µV") + PadTo(1, "°C"), "µV  °C");
  EXPECT_EQ(CutTo(4, "▁µ電x"), "▁µ電");
  EXPECT_EQ(CutTo(3, "▁µ電x"), "▁µ");
}

TEST(Output, TextCannotSteerATerminal) {
  EXPECT_EQ(TerminalSafe("a\x1b[2J\n\x7f"), "a\\u001b[2J\\u000a\\u007f");
  EXPECT_EQ(TerminalSafe("\u009b2J\u0080 \u00a0"), "\\u009b2J\\u0080 \u00a0");
  EXPECT_EQ(TerminalSafe("\u061C \u200E \u200F \u202E \u2069 \u206A電"),
            "\\u061c \\u200e \\u200f \\u202e \\u2069 \u206A電");
  EXPECT_EQ(TerminalSafe("\x9B\xC3("), "\uFFFD\uFFFD(");
  EXPECT_EQ(CsvField("a,\"b\"\n"), "\"a,\"\"b\"\"\\u000a\"");
}

TEST(Screen, BarsAndSparklinesHoldWhatTheGaugeMaySay) {
  EXPECT_EQ(Bar(65535, 4) + Bar(-1, 4), "[####][....]");
  EXPECT_EQ(Sparkline({}), "");
  EXPECT_EQ(Sparkline({5, std::nullopt, 5}), "▁ ▁");
  EXPECT_EQ(Sparkline({-2147483647 - 1, 0, 2147483647}), "▁▄█");
}

TEST(Timestamp, IsInUtcToTheMillisecond) {
  EXPECT_EQ(Timestamp({1, 5999999}), "1970-01-01T00:00:01.005Z");
  EXPECT_EQ(Timestamp(Now()), "2040-01-01T00:00:00.125Z");
  EXPECT_EQ(SinceStart().count(), 2208988800.125);
}
