// SPDX-License-Identifier: MIT
// Lets every system call and every allocation of an operation fail in turn. The program's own
// definitions of the C library's functions stand before the C library's.
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <Bq27542FuelGauge.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <new>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::Bq27542FuelGauge;
using dral::FuelGaugeProperty;
using dral::LifetimeData;
using dral::PropertyValue;

namespace {

// The call to fail: its name, how many of that name come before, the error, and how many bytes the
// calls before it may transfer.
struct Fault {
  std::string call;
  int after = 0;
  int error = 0;
  std::size_t most = SIZE_MAX;
};
Fault fault;

bool Fails(const char* call) {
  if (fault.call != call || fault.after-- != 0) {
    return false;
  }
  errno = fault.error;
  return true;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

long allocationsLeft = -1;  // -1: as many as are asked for

}  // namespace

extern "C" {
FILE* fopen64(const char* path, const char* mode) {
  return Fails("open") ? nullptr : Real<FILE*(const char*, const char*)>("fopen64")(path, mode);
}
int fclose(FILE* file) {
  const bool fails = Fails("close");  // the descriptor is gone all the same, as after close(2)
  const int result = Real<int(FILE*)>("fclose")(file);
  errno = fails ? fault.error : errno;
  return fails ? EOF : result;
}
ssize_t read(int file, void* to, size_t count) {
  return Fails("read")
             ? -1
             : Real<ssize_t(int, void*, size_t)>("read")(file, to, std::min(count, fault.most));
}
ssize_t write(int file, const void* from, size_t count) {
  return Fails("write") ? -1 : Real<ssize_t(int, const void*, size_t)>("write")(file, from, count);
}
ssize_t writev(int file, const iovec* from, int count) {
  return Fails("write") ? -1 : Real<ssize_t(int, const iovec*, int)>("writev")(file, from, count);
}
int stat(const char* path, struct stat* result) {
  // Not by name: where times have 32 bits, the header gives the 64-bit function under another one.
  return Fails("stat") ? -1 : ::fstatat(AT_FDCWD, path, result, 0);
}
}

void* operator new(std::size_t size) {
  if (allocationsLeft == 0) {
    throw std::bad_alloc();
  }
  allocationsLeft -= allocationsLeft > 0 ? 1 : 0;
  if (void* memory = std::malloc(size)) {
    return memory;
  }
  throw std::bad_alloc();
}
// Not inline: GCC would see a free of what it knows to come from new.
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

std::ptrdiff_t OpenFiles() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  return std::distance(begin(files), end(files));
}

TEST(Fault, EverySystemCallThatFailsHasItsAnswer) {
  const TemporaryFolder folder;
  const auto property = FuelGaugeProperty::LifetimeData;
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  const std::string path = folder.At("") + "/lifetime_data";
  const std::string blank = Bytes(LifetimeData{});
  const std::string contents = "12345 " + std::string(5000, '.');  // more than a block
  const std::string noText =
      "3 Readable GetTextFileContents: Bad or No data encountered in file:" + path + "\n";
  const std::string noRecord =
      "3 Readable GetBinaryFileContents: Bad or no data encountered in file:" + path + "\n";
  const std::string noNumber = "3 Bq27542FuelGauge DoGet: Failed to get property: 15ex: stoi\n";
  const auto notOpened = [&path](const std::string& text, int error) {
    return "3 " + text + "failed to open file: " + path + "error: " + std::strerror(error) + "\n";
  };
  const std::function<std::string()> text = [&] { return Describe(gauge.Get(property, "hint")); };
  const std::function<std::string()> number = [&] { return Describe(gauge.Get(property, 7)); };
  const std::function<std::string()> record = [&] {
    return Describe(gauge.Get(property, LifetimeData{}));
  };
  const std::function<std::string()> set = [&] { return Describe(gauge.Set(property, "text")); };
  const std::function<std::string()> reset = [&] { return Describe(gauge.Reset(property)); };
  struct Case {
    Fault fault;
    const std::function<std::string()>& operation;
    std::string outcome;
    std::string records;
  };
  std::vector<Case> cases = {
      {{"read", 0, EINTR}, text, "0 string " + contents, ""},
      {{"read", 1, EINTR, 5}, record, "0 record " + contents.substr(0, 32), ""},
      {{"none", 0, 0, 1}, number, "0 int 12345", ""},
      {{"close", 0, EIO}, text, "0 string " + contents, ""},
      {{"close", 0, EIO}, set, "0", ""},
      {{"write", 0, EINTR}, set, "0", ""},
  };
  for (const int error : {ENOENT, EACCES, EMFILE, ENFILE, ENOMEM, ENODEV}) {
    const std::string noFile = notOpened("Readable GetTextFileContents: Readable::Get ", error);
    cases.push_back({{"open", 0, error}, text, "3 string ", noFile});
    cases.push_back({{"open", 0, error}, number, "2 int 7", noFile + noNumber});
    cases.push_back(
        {{"open", 0, error},
         record,
         "3 record " + blank,
         notOpened("Readable GetBinaryFileContents: Readable::GetBinaryFileContents ", error)});
    cases.push_back(
        {{"open", 0, error}, set, "3", notOpened("Writable operator(): Writable::Set ", error)});
    cases.push_back(
        {{"stat", 0, error},
         reset,
         "3",
         "3 Writable WriteData: Writable::Set failed - file not found: " + path + "\n"});
  }
  for (const int error : {EIO, ENODEV, ENODATA, EAGAIN, EBUSY, ENXIO, ETIMEDOUT, ENOMEM}) {
    cases.push_back({{"read", 0, error}, text, "4 string ", noText});
    cases.push_back({{"read", 1, error, 5}, text, "4 string ", noText});  // after a few bytes
    cases.push_back({{"read", 2, error}, text, "4 string ", noText});     // after a whole block
    cases.push_back({{"read", 0, error}, number, "2 int 7", noText + noNumber});
    cases.push_back({{"read", 1, error}, number, "2 int 7", noText + noNumber});
    cases.push_back({{"read", 0, error}, record, "4 record " + blank, noRecord});
    cases.push_back({{"read", 1, error, 10},
                     record,
                     "4 record " + contents.substr(0, 10) + blank.substr(10),
                     noRecord});
    cases.push_back({{"write", 0, error}, set, "0", ""});
    cases.push_back({{"write", 0, ENOSPC}, reset, "0", ""});
  }
  LogCapture log(3);
  for (const Case& each : cases) {
    folder.Write("lifetime_data", contents);
    const std::ptrdiff_t files = OpenFiles();
    fault = each.fault;
    const std::string outcome = each.operation();
    fault = {};
    const std::string title = each.fault.call + " " + std::strerror(each.fault.error);
    EXPECT_EQ(outcome, each.outcome) << title;
    EXPECT_EQ(log.Take(), each.records) << title;
    EXPECT_EQ(OpenFiles(), files) << title;
  }
}

TEST(Fault, AReadErrorEndsAnOverrideFileAndDropsTheWordThatItCuts) {
  const TemporaryFolder folder;
  const std::string path = folder.Write("override", "maxTemp 550 minTemp -100 ");
  const LogCapture log(0);
  const std::pair<std::size_t, std::string> cases[] = {
      {11, "600 -200"}, {12, "550 -200"}, {23, "550 -200"}};
  for (const auto& [most, temperatures] : cases) {
    fault = {"read", 1, EIO, most};
    const auto data = std::get<LifetimeData>(
        Bq27542FuelGauge(path).Get(FuelGaugeProperty::LifetimeDataResetValue, 0).second);
    fault = {};
    EXPECT_EQ(std::to_string(data.maxTemp) + " " + std::to_string(data.minTemp), temperatures)
        << most;
  }
}

// A string as long as no string holds within itself is kept out of the values: GCC 12's std::variant
// crashes by itself when there is no memory to copy one. A text that is read is moved only.
TEST(Fault, EveryAllocationThatFailsIsAFailureAndChangesNothing) {
  const TemporaryFolder folder;
  const std::string override = folder.Write("override", "maxTemp 550 minTemp -100");
  const std::string file(5000, '1');
  const auto property = FuelGaugeProperty::LifetimeData;
  std::unique_ptr<dral::FuelGaugeIF> gauge =
      std::make_unique<Bq27542FuelGauge>("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  const std::pair<std::function<std::string()>, std::string> operations[] = {
      {[&] { return Describe(gauge->Get(property, "hint").first); }, "0"},
      {[&] { return Describe(gauge->Get(property, 7).first); }, "2"},
      {[&] { return Describe(gauge->Get(property, LifetimeData{}).first); }, "0"},
      {[&] { return Describe(gauge->Set(property, 7)); }, "0"},
      {[&] { return Describe(gauge->Reset(property)); }, "0"},
      {[&] {
         dral::InterfaceFactory::Create<dral::FuelGaugeIF, std::string_view>("DefaultIF", override);
         return std::string("0");
       },
       "0"},
  };
  for (const unsigned level : {0U, 8U}) {
    for (const auto& [operation, wanted] : operations) {
      std::string outcome;
      for (long allocations = 0; outcome != wanted || allocations < 2; ++allocations) {
        ASSERT_LT(allocations, 2000);
        folder.Write("lifetime_data", file);
        const LogCapture log(level);
        const std::ptrdiff_t files = OpenFiles();
        allocationsLeft = allocations;
        try {
          outcome = operation();
        } catch (const std::bad_alloc&) {
          outcome = "2";
          EXPECT_TRUE(level > 0 || &operation == &operations[5].first)
              << "only a record, or Create";
        }
        allocationsLeft = -1;
        EXPECT_TRUE(outcome == "2" || outcome == wanted) << outcome;
        EXPECT_EQ(OpenFiles(), files);
        if (outcome == "2") {
          EXPECT_EQ(folder.Read("lifetime_data"), file) << "a failure must not empty the file";
        }
      }
    }
  }
}

}  // namespace
