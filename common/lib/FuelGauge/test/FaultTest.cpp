// SPDX-License-Identifier: MIT
// Lets every system call and every allocation of an operation fail in turn. The program's own
// definitions of the C library's functions stand before the C library's.
#include <dlfcn.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <Bq27542FuelGauge.hpp>

#include <cerrno>
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
// calls before it may transfer. "found" is a file that goes once its stat has found it.
struct Fault {
  std::string_view call;
  int after = 0;
  int error = 0;
  std::size_t most = SIZE_MAX;
};
Fault fault;
bool inherited = false;  // a file was open that other programs would inherit

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
int open(const char* path, int flags, ...) {
  inherited = inherited || (!fault.call.empty() && (flags & O_CLOEXEC) == 0);
  // Not by name, here and below: where files or times have 32 bits, the header gives another function.
  return Fails("open") ? -1 : ::openat(AT_FDCWD, path, flags, 0600);
}
int close(int file) {
  const bool fails = Fails("close");  // the descriptor is gone all the same
  const int result = Real<decltype(close)>("close")(file);
  errno = fails ? fault.error : errno;
  return fails ? -1 : result;
}
ssize_t read(int file, void* to, size_t count) {
  count = std::min(count, fault.most);
  return Fails("read") ? -1 : Real<decltype(read)>("read")(file, to, count);
}
ssize_t write(int file, const void* from, size_t count) {
  count = std::min(count, fault.most);
  return Fails("write") ? -1 : Real<decltype(write)>("write")(file, from, count);
}
int stat(const char* path, struct stat* result) {
  const int found = Fails("stat") ? -1 : ::fstatat(AT_FDCWD, path, result, 0);
  return Fails("found") ? ::unlink(path) : found;
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
  const auto written = [&](dral::FuelGaugeStatus status) {
    return Describe(status) + " " + folder.Read("lifetime_data");
  };
  const std::function<std::string()> set = [&] { return written(gauge.Set(property, "text")); };
  const std::function<std::string()> reset = [&] { return written(gauge.Reset(property)); };
  struct Case {
    Fault fault;
    const std::function<std::string()>& operation;
    std::string outcome;
    std::string records;
  };
  const std::string noFile = notOpened("Readable GetTextFileContents: Readable::Get ", EMFILE);
  const Case cases[] = {
      {{"open", 0, EINTR}, text, "0 string " + contents, ""},
      {{"open", 0, EMFILE}, text, "3 string ", noFile},
      {{"open", 0, EMFILE}, number, "2 int 7", noFile + noNumber},
      {{"open", 0, EMFILE},
       record,
       "3 record " + blank,
       notOpened("Readable GetBinaryFileContents: Readable::GetBinaryFileContents ", EMFILE)},
      {{"open", 0, EMFILE},
       set,
       "3 " + contents,
       notOpened("Writable operator(): Writable::Set ", EMFILE)},
      {{"found", 0, ENOENT}, set, "3 ", notOpened("Writable operator(): Writable::Set ", ENOENT)},
      {{"stat", 0, EACCES},
       reset,
       "3 " + contents,
       "3 Writable WriteData: Writable::Set failed - file not found: " + path + "\n"},
      {{"read", 0, EINTR}, text, "0 string " + contents, ""},
      {{"read", 1, EINTR, 5}, record, "0 record " + contents.substr(0, 32), ""},
      {{"read", 0, EIO}, text, "4 string ", noText},
      {{"read", 1, EIO, 5}, text, "4 string ", noText},  // after a few bytes
      {{"read", 2, EIO}, text, "4 string ", noText},     // after a whole block
      {{"read", 1, EIO}, number, "2 int 7", noText + noNumber},
      {{"read", 0, EIO}, record, "4 record " + blank, noRecord},
      {{"read", 1, EIO, 10},
       record,
       "4 record " + contents.substr(0, 10) + blank.substr(10),
       noRecord},
      {{"none", 0, 0, 1}, number, "0 int 12345", ""},
      {{"none", 0, 0, 1}, reset, "0 " + blank, ""},
      {{"write", 0, EINTR}, set, "0 text", ""},
      {{"write", 0, ENOSPC}, set, "0 ", ""},
      {{"write", 1, EIO, 3}, set, "0 tex", ""},
      {{"close", 0, EIO}, text, "0 string " + contents, ""},
      {{"close", 0, EIO}, set, "0 text", ""},
  };
  LogCapture log(3);
  for (const Case& each : cases) {
    folder.Write("lifetime_data", contents);
    const std::ptrdiff_t files = OpenFiles();
    fault = each.fault;
    const std::string outcome = each.operation();
    fault = {};
    const std::string title = std::string(each.fault.call) + " " + std::strerror(each.fault.error);
    EXPECT_EQ(outcome, each.outcome) << title;
    EXPECT_EQ(log.Take(), each.records) << title;
    EXPECT_EQ(OpenFiles(), files) << title;
  }
  EXPECT_FALSE(inherited);
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

TEST(Fault, EveryAllocationThatFailsIsAFailureAndChangesNothing) {
  const TemporaryFolder folder;
  const std::string override = folder.Write("override", "maxTemp 550 minTemp -100");
  const std::string file(5000, '1');
  const auto property = FuelGaugeProperty::LifetimeData;
  std::unique_ptr<dral::FuelGaugeIF> gauge =
      std::make_unique<Bq27542FuelGauge>("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  // A text longer than a string holds within itself. It is not copied here: GCC 12's std::variant crashes
  // when there is no memory for that.
  const auto withLongText = [property] {
    const long left = std::exchange(allocationsLeft, -1);
    auto map = std::make_unique<dral::PropertyMap>();
    (*map)[property].resetValue = std::string(40, 'x');
    allocationsLeft = left;
    return map;
  };
  Bq27542FuelGauge longText("", withLongText());
  const std::pair<std::function<std::string()>, std::string> operations[] = {
      {[&] { return Describe(gauge->Get(property, "hint").first); }, "0"},
      {[&] { return Describe(gauge->Get(property, 7).first); }, "2"},
      {[&] { return Describe(gauge->Get(property, LifetimeData{}).first); }, "0"},
      {[&] { return Describe(gauge->Set(property, 7)); }, "0"},
      {[&] { return Describe(gauge->Reset(property)); }, "0"},
      // From here on they throw.
      {[&] { return Describe(longText.Get(FuelGaugeProperty::LifetimeDataResetValue, 0).first); },
       "0"},
      {[&] { return (void)Bq27542FuelGauge("", withLongText()), std::string("0"); }, "0"},
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
        bool threw = false;
        allocationsLeft = allocations;
        try {
          outcome = operation();
        } catch (const std::bad_alloc&) {
          outcome = "2";
          threw = true;
        }
        allocationsLeft = -1;
        EXPECT_TRUE(!threw || level > 0 || &operation >= &operations[5].first);
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
