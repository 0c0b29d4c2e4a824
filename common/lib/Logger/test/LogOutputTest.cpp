// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <LogOutput.hpp>

#include <cstdlib>
#include <stdexcept>

using dral::LogCategory;
using dral::LogClient;
using dral::LogLevel;
using dral::LogOutput;

namespace {

std::string Emitted(unsigned level, const std::string& text) {
  testing::internal::CaptureStderr();
  LogClient("lib/src/Class", "Function", 12, LogLevel{level}, LogCategory{1}) << text;
  return testing::internal::GetCapturedStderr();
}

TEST(LogOutput, LinesAreWhatJournaldReads) {
  EXPECT_EQ(Emitted(3, "text"), "<3>lib/src/Class:Function:12: text\n");
  EXPECT_EQ(Emitted(8, "text\n\n"), "<7>lib/src/Class:Function:12: text\n");
  EXPECT_EQ(
      Emitted(3, "25 °C 電\n<0>forged\t\x1b[2J\x7f \xc2\x9b \x9b \xc0\x9b \xe0\x80\x9b \xe2\x82"),
      "<3>lib/src/Class:Function:12: 25 °C 電\\x0a<0>forged\\x09\\x1b[2J\\x7f \\xc2\\x9b \\x9b "
      "\\xc0\\x9b \\xe0\\x80\\x9b \\xe2\\x82\n");
}

TEST(LogOutput, PiecesAreJoinedAndAFlushSplitsNothing) {
  std::string text;
  LogOutput::SetSink([&text](const dral::LogRecord& record) { text += record.text + "|"; });
  LogClient("s", "f", 1, LogLevel{3}, LogCategory{1}) << "a" << 4200 << std::string("b") << -1;
  LogOutput::SetSink([](const dral::LogRecord&) { throw std::runtime_error("full"); });
  EXPECT_EQ(Emitted(3, "x"), "<3>a log record was lost: out of memory, or its sink threw\n");
  LogOutput::SetSink({});
  EXPECT_EQ(text, "a4200b-1|");
}

TEST(LogOutput, LevelComesFromTheEnvironmentAndThenFromTheProgram) {
  const auto highest = [](const char* environment) {
    // In a process of its own, which has not asked yet.
    EXPECT_EXIT(
        {
          environment != nullptr ? ::setenv("KESP_LOG_LEVEL", environment, 1)
                                 : ::unsetenv("KESP_LOG_LEVEL");
          int level = 9;
          while (level >= 0 && !LogClient::LevelIsEnabled(LogLevel{static_cast<unsigned>(level)})) {
            --level;
          }
          std::_Exit(level + 1);
        },
        [environment](int status) {
          const int wanted = environment == std::string("8")   ? 8
                             : environment == std::string("0") ? 0
                                                               : 3;
          return WEXITSTATUS(status) == wanted + 1;
        },
        environment != nullptr && environment == std::string("loud\n<0>x")
            ? R"(^<4>KESP_LOG_LEVEL='loud\\x0a<0>x' is not a number)"
            : "");
  };
  highest("8");
  highest("0");
  highest("loud\n<0>x");
  LogOutput::SetLevel(LogLevel{6});
  EXPECT_TRUE(LogClient::LevelIsEnabled(LogLevel{6}));
  EXPECT_FALSE(LogClient::LevelIsEnabled(LogLevel{7}));
}

}  // namespace
