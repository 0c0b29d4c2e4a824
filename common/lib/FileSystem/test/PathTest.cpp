// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <Path.hpp>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

static bool Exists(std::string_view path) {
  return dral::Path(path, nullptr).Exists();
}

TEST(Path, ExistsAsStatSeesIt) {
  EXPECT_TRUE(Exists("/dev/null"));
  EXPECT_FALSE(Exists("/dev/null/x"));
  EXPECT_FALSE(Exists(""));
  // What takes more than 32 bits: a time, and a size.
  std::FILE* const file = std::tmpfile();
  ASSERT_NE(file, nullptr);
  const int descriptor = ::fileno(file);
  const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
  const timespec times[] = {{.tv_sec = 2208988800}, {.tv_sec = 2208988800}};
  EXPECT_EQ(::futimens(descriptor, times), 0);
  EXPECT_TRUE(Exists(path)) << "of the year 2040";
  EXPECT_EQ(::ftruncate(descriptor, off_t{1} << 32), 0);  // which also sets the time to now
  EXPECT_TRUE(Exists(path)) << "of 4 GiB";
  EXPECT_EQ(std::fclose(file), 0);
}

TEST(Path, AsksTheLinuxApiThatItWasGiven) {
  struct Answer : dral::LinuxApiIF {
    int Stat(const std::string& path) const override { return path == "/there" ? 0 : -1; }
  };
  EXPECT_TRUE(dral::Path("/there", std::make_unique<Answer>()).Exists());
  EXPECT_FALSE(dral::Path("/dev/null", std::make_unique<Answer>()).Exists());
}
