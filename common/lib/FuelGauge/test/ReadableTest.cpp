// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <unistd.h>

#include "Fault.hpp"
#include "support/FolderGauge.hpp"

using namespace dral;

TEST(Readable, AnswersAsTheHintAsks) {
  FolderGauge at;
  const std::string path = at.folder.At("lifetime_data");
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
  struct Case {
    std::string contents;
    PropertyValue hint;
    std::string answer;
    std::string records{};
    Fault fault{};
  };
  const Case cases[] = {
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
  ::close(STDIN_FILENO);  // so that the file may get descriptor 0
  for (const Case& each : cases) {
    at.folder.Write("lifetime_data", each.contents);
    const auto files = OpenFiles();
    fault = each.fault;
    const auto answer = at.gauge.Get(FuelGaugeProperty::LifetimeData, each.hint);
    fault = {};
    EXPECT_EQ(Describe(answer), each.answer) << each.contents << each.fault.call;
    EXPECT_EQ(at.log.Take(), each.records) << each.contents << each.fault.call;
    EXPECT_EQ(OpenFiles(), files);
  }
}
