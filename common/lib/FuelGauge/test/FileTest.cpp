// SPDX-License-Identifier: MIT
// What a property's file gives to a read, and takes from a write.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <functional>
#include <future>

#include "Fault.hpp"
#include "support/FolderGauge.hpp"

using namespace dral;

class File : public ::testing::Test, protected FolderGauge {
 protected:
  struct Case {
    std::string contents;
    PropertyValue value;  // the hint, or what is written
    std::string outcome;
    std::string records{};
    Fault fault{};
  };

  void Expect(const std::vector<Case>& cases,
              const std::function<std::string(const PropertyValue&)>& outcome) {
    ::close(STDIN_FILENO);  // so that the file may get descriptor 0
    for (const Case& each : cases) {
      folder.Write("lifetime_data", each.contents);
      const auto files = OpenFiles();
      fault = each.fault;
      EXPECT_EQ(outcome(each.value), each.outcome) << each.contents << each.fault.call;
      fault = {};
      EXPECT_EQ(log.Take(), each.records) << each.contents << each.fault.call;
      EXPECT_EQ(OpenFiles(), files);
    }
  }

  static constexpr auto Property = FuelGaugeProperty::LifetimeData;
  const std::string path = folder.At("lifetime_data");
};

TEST_F(File, IsReadAsTheHintAsks) {
  const PropertyValue record = LifetimeData{1, 2, 3, 4, 5, 6};
  const std::string blank = Bytes(LifetimeData{});
  const std::string page = "12345 " + std::string(5000, '.');  // more than a block
  const std::string noText =
      "3 Readable GetTextFileContents: Bad or No data encountered in file:" + path + "\n";
  const std::string noRecord =
      "3 Readable GetBinaryFileContents: Bad or no data encountered in file:" + path + "\n";
  const std::string notOpened =
      "failed to open file: " + path + "error: " + std::strerror(EMFILE) + "\n";
  const std::string noFile = "3 Readable GetTextFileContents: Readable::Get " + notOpened;
  const std::string noRecordFile =
      "3 Readable GetBinaryFileContents: Readable::GetBinaryFileContents " + notOpened;
  const std::string tooMuch = "3 Readable operator(): Value out of range for unsigned int: ";
  const std::string threw = "3 Bq27542FuelGauge DoGet: Failed to get property: 15ex: ";
  const std::vector<Case> cases = {
      {"\na\r\n b\t\n\n", "hint", "0 string a\r b\t"},
      {"", "hint", "4 string ", noText},
      {page + "\n" + page, "hint", "0 string " + page + page},
      {std::string("\0\n\xFF", 3), "hint", std::string("0 string \0\xFF", 11)},
      {"  17 mAh\n", 99, "0 int 17"},
      {" \t\n\v\f\r-5", 99, "0 int -5"},
      {"+5", 99, "0 int 5"},
      {"+-5", 99, "2 int 99", threw + "stoi\n"},
      {"2147483647", 99, "0 int 2147483647"},
      {"2147483648", 99, "2 int 99", threw + "stoi\n"},
      {"-2147483648", 99, "0 int -2147483648"},
      {"-2147483649", 99, "2 int 99", threw + "stoi\n"},
      {"", 99, "2 int 99", noText + threw + "stoi\n"},
      {"1\n", true, "0 bool true"},
      {"2\n", true, "0 bool false"},
      {"true\n", true, "2 bool true", threw + "stoi\n"},
      {"4294967295\n", 99U, "0 uint 4294967295"},
      {" 4294967296 x", 99U, "2 uint 99", tooMuch + "4294967296\n" + threw + " 4294967296 x\n"},
      {"-1", 99U, "2 uint 99", tooMuch + "18446744073709551615\n" + threw + "-1\n"},
      {"-18446744073709551615", 99U, "0 uint 1"},
      {"18446744073709551616", 99U, "2 uint 99", threw + "stoul\n"},
      {std::string(32, 'r') + "s", record, "0 record " + std::string(32, 'r')},
      {"0123456789", record, "4 record 0123456789" + blank.substr(10), noRecord},
      {page, "hint", "0 string " + page, "", {"open", 0, EINTR}},
      {page, "hint", "3 EMFILE string ", noFile, {"open", 0, EMFILE}},
      {page, record, "3 EMFILE record " + blank, noRecordFile, {"open", 0, EMFILE}},
      {page, "hint", "0 string " + page, "", {"read", 1, EINTR, 5}},
      {page, "hint", "4 EIO string ", noText, {"read", 2, EIO}},  // after a whole block
      {page, record, "4 EIO record 12345 " + blank.substr(6), noRecord, {"read", 1, EIO, 6}},
      {page, "hint", "0 string " + page, "", {"close", 0, EIO}},
  };
  Expect(cases, [&](const PropertyValue& hint) { return Describe(gauge.Get(Property, hint)); });
}

TEST_F(File, HoldsJustTheValueInTheFormOfItsType) {
  const std::string before = "older, and longer than what is written";
  const LifetimeData given{1, -2, 3, 4, 5, -6};
  const std::string notFound =
      "3 Writable WriteData: Writable::Set failed - file not found: " + path + "\n";
  const std::string notOpened =
      "3 Writable operator(): Writable::Set failed to open file: " + path +
      "error: " + std::strerror(ENOENT) + "\n";
  const std::vector<Case> cases = {
      {before, -2147483647 - 1, "0 -2147483648"},
      {before, 4294967295U, "0 4294967295"},
      {before, true, "0 1"},
      {before, false, "0 0"},
      {before, "any\ntext ", "0 any\ntext "},
      {before, "", "0 "},
      {before, std::string(5000, 'x'), "0 " + std::string(5000, 'x')},
      {before, given, "0 " + Bytes(given)},
      {before, "text", "3 EACCES " + before, notFound, {"stat", 0, EACCES}},
      {before, "text", "3 ENOENT ", notOpened, {"found", 0, ENOENT}},
      {before, "text", "0 text", "", {"write", 1, EINTR, 3}},
      {before, "text", "0 EIO tex", "", {"write", 1, EIO, 3}},
      {before, given, "0 ENOSPC ", "", {"write", 0, ENOSPC}},
      {before, "text", "0 EDQUOT text", "", {"close", 0, EDQUOT}},
  };
  // The status, and what the file holds then.
  Expect(cases, [&](const PropertyValue& value) {
    const std::string status = Describe(gauge.Set(Property, value));
    fault = {};
    return status + " " + folder.Read("lifetime_data");
  });
  EXPECT_EQ(Describe(gauge.Reset(Property)), "0");
  EXPECT_EQ(folder.Read("lifetime_data"), Bytes(LifetimeData{}));
}

// What every operation answers, as each type, to each way in which the file can fail it.
struct Situation {
  std::string target;  // of the link that is the property's file
  std::string text, number, record, write;
  bool settable = true;
  FuelGaugeProperty property = FuelGaugeProperty::LifetimeData;
};
const Situation situations[] = {
    {"none", "3 ENOENT", "2 ENOENT", "3 ENOENT", "3 ENOENT"},
    {".", "4 EISDIR", "2 EISDIR", "4 EISDIR", "3 EISDIR"},
    {"file", "3 ELOOP", "2 ELOOP", "3 ELOOP", "3 ELOOP"},
    {"word/below", "3 ENOTDIR", "2 ENOTDIR", "3 ENOTDIR", "3 ENOTDIR"},
    {"/proc/self/mem", "4 EIO", "2 EIO", "4 EIO", "0 EIO"},  // as a bus that is dead
    {"empty", "4", "2", "4", "0"},
    {"large", "0", "2", "4", "0"},
    {"word", "0", "2", "4", "2", false},  // no number, and too short for a record
    {"word", "2", "2", "2", "2", false, FuelGaugeProperty{17}},
    {"word", "0", "0", "0", "2", false, FuelGaugeProperty::LifetimeDataResetValue},
};

static void AskAll() {
  LogOutput::SetSink({});  // by both threads at once
  for (const Situation& each : situations) {
    const TemporaryFolder folder;
    folder.Write("empty", "");
    folder.Write("word", "full");
    folder.Write("large", "99999999999999999999");
    std::filesystem::create_symlink(each.target, folder.At("file"));
    Bq27542FuelGauge gauge("", MapOf(FuelGaugeProperty::LifetimeData,
                                     {"", each.settable, true, folder.At("file"), "value"}));
    const std::string answers[] = {each.text, each.number, each.number, each.number, each.record};
    for (const PropertyValue& hint : {PropertyValue(""), PropertyValue(0), PropertyValue(0U),
                                      PropertyValue(true), PropertyValue(LifetimeData{})}) {
      errno = E2BIG;  // something older, here and below
      EXPECT_EQ(Describe(gauge.Get(each.property, hint).first), answers[hint.index()]);
    }
    errno = E2BIG;
    EXPECT_EQ(Describe(gauge.Set(each.property, "value")), each.write) << each.target;
    errno = E2BIG;
    EXPECT_EQ(Describe(gauge.Reset(each.property)), each.write) << each.target;
    EXPECT_EQ(folder.Read("word"), "full");
  }
}

TEST(Situations, HaveTheirStatusAndErrnoThoughTwoThreadsLogToNowhere) {
  const int standardError = ::dup(STDERR_FILENO);
  ASSERT_EQ(::dup2(::open("/", O_PATH), STDERR_FILENO), STDERR_FILENO);  // as if closed: EBADF
  LogOutput::SetLevel(LogLevel{8});
  auto other = std::async(std::launch::async, AskAll);
  AskAll();
  other.get();
  ::dup2(standardError, STDERR_FILENO);
}
