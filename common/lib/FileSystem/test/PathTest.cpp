// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <Path.hpp>

namespace {

bool Exists(std::string_view path) {
  return dral::Path(path, nullptr).Exists();
}

TEST(Path, ExistsAsStatSeesIt) {
  EXPECT_TRUE(Exists("/dev/null"));
  EXPECT_TRUE(Exists("/"));
  EXPECT_TRUE(Exists("/proc/self/exe")) << "a link is followed";
  EXPECT_FALSE(Exists("/dev/null/x"));
  EXPECT_FALSE(Exists("/no such file"));
  EXPECT_FALSE(Exists(""));
}

TEST(Path, AsksTheLinuxApiThatItWasGiven) {
  struct Answer : dral::LinuxApiIF {
    int Stat(const std::string& path) const override { return path == "/there" ? 0 : -1; }
  };
  EXPECT_TRUE(dral::Path("/there", std::make_unique<Answer>()).Exists());
  EXPECT_FALSE(dral::Path("/dev/null", std::make_unique<Answer>()).Exists());
}

}  // namespace
