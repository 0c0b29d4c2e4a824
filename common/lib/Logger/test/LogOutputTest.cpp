// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <pthread.h>
#include <LogOutput.hpp>

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

using namespace dral;

static std::string Emitted(unsigned level, const std::string& text) {
  testing::internal::CaptureStderr();
  LogClient("lib/src/Class", "Function", 12, LogLevel{level}, LogCategory{1}) << text;
  return testing::internal::GetCapturedStderr();
}

TEST(LogOutput, LinesAreWhatJournaldReads) {
  EXPECT_EQ(Emitted(3, "text"), "<3>lib/src/Class:Function:12: text\n");
  EXPECT_EQ(Emitted(8, "text\n\n"), "<7>lib/src/Class:Function:12: text\n");
  EXPECT_EQ(Emitted(3, " ~\n<0>forged\x1f\x1b[2J\x7f \xc2\x9b\xff"),
            "<3>lib/src/Class:Function:12:  ~\\x0a<0>forged\\x1f\\x1b[2J\\x7f \\xc2\\x9b\\xff\n");
}

TEST(LogOutput, AThreadThatIsCancelledWhileItLogsEndsAlone) {
  testing::internal::CaptureStderr();
  std::thread([] {
    ::pthread_cancel(::pthread_self());
    LogClient("s", "f", 1, LogLevel{3}, LogCategory{1}) << "text";
  }).join();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "<3>s:f:1: text\n");
}

TEST(LogOutput, ASinkAloneGetsEachRecordWhole) {
  std::string text;
  LogOutput::SetSink([&text](const LogRecord& record) { text += record.text + "|"; });
  LogClient("s", "f", 1, LogLevel{3}, LogCategory{1}) << "a" << 4200 << -1;
  EXPECT_EQ(Emitted(3, "last"), "");
  EXPECT_EQ(text, "a4200-1|last|");
  LogOutput::SetSink([](const LogRecord&) { throw std::runtime_error("full"); });
  EXPECT_EQ(Emitted(3, "x"), "<3>a log record was lost: out of memory, or its sink threw\n");
  LogOutput::SetSink({});
}

TEST(LogOutput, LevelComesFromTheEnvironmentAndThenFromTheProgram) {
  const auto expect = [](const char* environment, int highest, const char* message) {
    // In a process of its own, which has not asked yet.
    EXPECT_EXIT(
        {
          environment != nullptr ? ::setenv("KESP_LOG_LEVEL", environment, 1)
                                 : ::unsetenv("KESP_LOG_LEVEL");
          unsigned level = 9;
          while (level > 0 && !LogClient::LevelIsEnabled(LogLevel{level})) {
            --level;
          }
          std::_Exit(static_cast<int>(level));
        },
        testing::ExitedWithCode(highest), message);
  };
  expect(nullptr, 3, "^$");
  expect("8", 8, "^$");
  expect("0", 0, "^$");
  expect("8x", 3,
         "^<4>KESP_LOG_LEVEL='8x' is not a number from 0 to 4294967295; logging errors only\n$");
  expect("loud\n<0>x", 3, R"(^<4>KESP_LOG_LEVEL='loud\\x0a<0>x' is not a number)");
  LogOutput::SetLevel(LogLevel{6});
  EXPECT_TRUE(LogClient::LevelIsEnabled(LogLevel{6}));
  EXPECT_FALSE(LogClient::LevelIsEnabled(LogLevel{7}));
}
