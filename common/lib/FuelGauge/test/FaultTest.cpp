// SPDX-License-Identifier: MIT
// Lets system calls and allocations fail. The program's own definitions of the C library's functions
// stand before the C library's.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <new>

#include "Fault.hpp"
#include "support/FolderGauge.hpp"

using namespace dral;

Fault fault;

namespace {

thread_local int allocationsLeft = -1;  // -1: as many as are asked for

bool Fails(const char* call) {
  if (fault.call != call || fault.after-- != 0) {
    return false;
  }
  errno = fault.error;
  return true;
}

}  // namespace

extern "C" {
int open(const char* path, int flags, ...) {
  EXPECT_TRUE(fault.call.empty() || (flags & O_CLOEXEC) != 0) << "other programs would inherit it";
  // Not by name, here and below: where files or times have 32 bits, the header gives another function.
  return Fails("open") ? -1 : ::openat(AT_FDCWD, path, flags, 0600);
}
ssize_t read(int file, void* to, size_t count) {
  count = std::min(count, fault.most);
  return Fails("read") ? -1 : ::syscall(SYS_read, file, to, count);
}
ssize_t write(int file, const void* from, size_t count) {
  count = std::min(count, fault.most);
  return Fails("write") ? -1 : ::syscall(SYS_write, file, from, count);
}
int close(int file) {
  return ::syscall(SYS_close, file) != 0 || Fails("close") ? -1 : 0;
}
int stat(const char* path, struct stat* result) {
  const int found = Fails("stat") ? -1 : ::fstatat(AT_FDCWD, path, result, 0);
  return Fails("found") ? ::unlink(path) : found;
}
}

[[gnu::noinline]] void* operator new(std::size_t size) {
  void* const memory = allocationsLeft != 0 ? std::malloc(size) : nullptr;
  if (memory == nullptr) {
    errno = ENOMEM;
    throw std::bad_alloc();
  }
  allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
  return memory;
}
// Not inline: GCC would see a free of what it knows to come from new.
// A sanitizer's own would not ask the one above.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return std::malloc(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

TEST(Fault, AReadErrorEndsAnOverrideFileAndDropsTheWordThatItCuts) {
  FolderGauge at;
  const std::string path = at.folder.Write("override", "maxTemp 550 minTemp -100 ");
  const std::pair<std::size_t, std::int16_t> cases[] = {{11, 600}, {12, 550}, {23, 550}};
  for (const auto& [most, maxTemp] : cases) {
    fault = {"read", 1, EIO, most};
    at.gauge.UpdateResetPropertyValues(path);
    fault = {};
    EXPECT_EQ(Describe(at.gauge.Get(FuelGaugeProperty::LifetimeDataResetValue, 0)),
              "0 record " + Bytes({.maxTemp = maxTemp}));
  }
}

TEST(Fault, ALogLineIsWholeThoughItsWritesAreShortAndInterrupted) {
  testing::internal::CaptureStderr();
  fault = {"write", 1, EINTR, 3};
  LogClient("source", "function", 1, LogLevel{3}, LogCategory{1}) << "text";
  fault = {};
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "<3>source:function:1: text\n");
}

TEST(Fault, EveryAllocationThatFailsIsAFailureAndChangesNothing) {
  const auto property = FuelGaugeProperty::LifetimeData;
  FolderGauge at;
  const std::string override = at.folder.Write("override", "maxTemp 550 minTemp -100");
  const std::string file = "1" + std::string(5000, ' ');
  const std::function<FuelGaugeStatus()> operations[] = {
      [&] { return at.gauge.Get(property, "hint").first; },
      [&] { return at.gauge.Get(property, 7).first; },
      [&] { return at.gauge.Get(property, LifetimeData{}).first; },
      [&] { return at.gauge.Set(property, 7); },
      [&] { return at.gauge.Reset(property); },
      // From here on they throw.
      [&] {
        auto map = std::make_unique<PropertyMap>();
        (*map)[property].resetValue =
            std::string(40, 'x');  // longer than a string holds within itself
        Bq27542FuelGauge longText("", std::move(map));
        return longText.Get(FuelGaugeProperty::LifetimeDataResetValue, 0).first;
      },
      [&] {
        InterfaceFactory::Create<FuelGaugeIF, std::string_view>("DefaultIF", override);
        return FuelGaugeStatus::Success;
      },
  };
  int all = 0;
  for (const unsigned level : {0U, 8U}) {
    LogOutput::SetLevel(LogLevel{level});
    for (const auto& operation : operations) {
      int allocations = 0;
      for (bool failed = true; failed; ++allocations) {
        at.folder.Write("lifetime_data", file);
        const auto files = OpenFiles();
        try {
          allocationsLeft = allocations;
          failed = operation() == FuelGaugeStatus::Failure;
          EXPECT_EQ(errno, failed ? ENOMEM : 0);
          allocationsLeft = -1;
        } catch (const std::bad_alloc&) {
          allocationsLeft = -1;
          EXPECT_TRUE(level > 0 || &operation >= &operations[5]);
        }
        EXPECT_EQ(OpenFiles(), files);
        EXPECT_TRUE(!failed || at.folder.Read("lifetime_data") == file);
        ASSERT_LT(allocations, 2000);
      }
      all += allocations;
    }
  }
  EXPECT_GT(all, 50) << "it is not this operator new that is asked";
}
