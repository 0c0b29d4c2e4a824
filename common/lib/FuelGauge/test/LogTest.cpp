// SPDX-License-Identifier: MIT
#include "Log.hpp"

#include <gtest/gtest.h>

#include "support/LogCapture.hpp"

using namespace dral;

TEST(Log, EvaluatesNothingWhileItsLevelIsOff) {
  LogCapture log(5);
  int evaluated = 0;
  for (int pass = 0; pass < 2; ++pass) {
    KESP_LOG("Class", LogRepair) << "text" << ++evaluated;
    LogOutput::SetLevel(LogRepair);
  }
  EXPECT_EQ(log.Take(), "6 Class TestBody: text1\n");
}
