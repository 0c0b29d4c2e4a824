// SPDX-License-Identifier: MIT
#include "Readable.hpp"

#include <gtest/gtest.h>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::FuelGaugeProperty;
using dral::LifetimeData;
using dral::PropertyMap;
using dral::PropertyValue;
using dral::Readable;

namespace {

const PropertyValue Text = "ignored";
const PropertyValue Int = 99;
const PropertyValue Unsigned = 99U;
const PropertyValue Bool = true;
const PropertyValue Binary = LifetimeData{1, 2, 3, 4, 5, 6};

std::string Get(const std::string& location, const PropertyValue& hint) {
  const PropertyMap map{{FuelGaugeProperty::VoltageNow, {.location = location}}};
  return Outcome([&] { return Readable(FuelGaugeProperty::VoltageNow, map).Get(hint); });
}

TEST(Readable, ConvertsTheTextAsTheHintAsks) {
  struct Case {
    const char* title;
    std::string text;
    PropertyValue hint;
    std::string outcome;
  };
  const std::string page(5000, 'x');
  const Case cases[] = {
      {"line end goes", "4200\n", Text, "0 string 4200"},
      {"every line end goes, the rest stays", "\na\r\n b\t\n\n", Text, "0 string a\r b\t"},
      {"only line ends", "\n\n", Text, "0 string "},
      {"blank inside", "Not charging\n", Text, "0 string Not charging"},
      {"longer than a page", page + "\n" + page, Text, "0 string " + page + page},
      {"record as text", std::string("\0\n\xFF", 3), Text, std::string("0 string \0\xFF", 11)},
      {"number", "4200\n", Int, "0 int 4200"},
      {"blanks before, unit after", "  17 mAh\n", Int, "0 int 17"},
      {"all white space", " \t\n\v\f\r-5", Int, "0 int -5"},
      {"plus", "+5", Int, "0 int 5"},
      {"two signs", "+-5", Int, "invalid_argument stoi"},
      {"blank after the sign", "- 5", Int, "invalid_argument stoi"},
      {"hexadecimal is not read", "0x10", Int, "0 int 0"},
      {"fraction is cut", "600.5", Int, "0 int 600"},
      {"greatest int", "2147483647", Int, "0 int 2147483647"},
      {"beyond it", "2147483648", Int, "out_of_range stoi"},
      {"least int", "-2147483648", Int, "0 int -2147483648"},
      {"below it", "-2147483649", Int, "out_of_range stoi"},
      {"beyond 64 bits", "-99999999999999999999", Int, "out_of_range stoi"},
      {"no number", "Full\n", Int, "invalid_argument stoi"},
      {"only white space", " \n", Int, "invalid_argument stoi"},
      {"zero byte", std::string("\0001", 2), Int, "invalid_argument stoi"},
      {"true", "1\n", Bool, "0 bool true"},
      {"two is not true", "2\n", Bool, "0 bool false"},
      {"minus one is not true", "-1\n", Bool, "0 bool false"},
      {"zero", "0\n", Bool, "0 bool false"},
      {"word", "true\n", Bool, "invalid_argument stoi"},
      {"too large a flag", "2147483648", Bool, "out_of_range stoi"},
      {"greatest unsigned", "4294967295\n", Unsigned, "0 uint 4294967295"},
      {"negated into range", "-18446744073709551615", Unsigned, "0 uint 1"},
      {"beyond 64 bits, unsigned", "18446744073709551616", Unsigned, "out_of_range stoul"},
      {"no unsigned number", "-\n", Unsigned, "invalid_argument stoul"},
      {"binary record", std::string(32, 'r') + "s", Binary, "0 record " + std::string(32, 'r')},
  };
  const TemporaryFolder folder;
  LogCapture log;
  for (const Case& each : cases) {
    EXPECT_EQ(Get(folder.Write("value", each.text), each.hint), each.outcome) << each.title;
    EXPECT_EQ(log.Take(), "") << each.title;
  }
}

TEST(Readable, AnUnsignedBeyond32BitsIsLoggedAndThrownWithItsText) {
  const TemporaryFolder folder;
  LogCapture log;
  const std::pair<std::string, std::string> cases[] = {{"-1\n", "18446744073709551615"},
                                                       {" 4294967296 x", "4294967296"}};
  for (const auto& [text, value] : cases) {
    EXPECT_EQ(Get(folder.Write("value", text), Unsigned), "out_of_range " + text);
    log.Quietly([&] { return Get(folder.At("value"), Unsigned); });
    EXPECT_EQ(log.Take(),
              "3 Readable operator(): Value out of range for unsigned int: " + value + "\n");
  }
}

TEST(Readable, TellsAFileThatCannotBeOpenedFromOneThatGivesNothing) {
  const TemporaryFolder folder;
  const std::string blank = Bytes(LifetimeData{});
  const std::string missing = folder.At("missing");
  const std::string empty = folder.Write("empty", "");
  const std::string ten = folder.Write("ten", "0123456789");
  const std::string dead = "/proc/self/mem";  // opens, and answers EIO when it is read
  const std::string directory = folder.At("");
  const std::string noText = "GetTextFileContents: Bad or No data encountered in file:";
  const std::string noRecord = "GetBinaryFileContents: Bad or no data encountered in file:";
  const std::string absent = missing + "error: " + std::strerror(ENOENT);
  const std::string noFile = "GetTextFileContents: Readable::Get failed to open file: " + absent;
  struct Case {
    std::string path;
    PropertyValue hint;
    std::string outcome;
    std::string record;
  };
  const Case cases[] = {
      {missing, Text, "3 string ", noFile},
      {missing, Int, "invalid_argument stoi", noFile},
      {missing, Unsigned, "invalid_argument stoul", noFile},
      {missing, Bool, "invalid_argument stoi", noFile},
      {missing, Binary, "3 record " + blank,
       "GetBinaryFileContents: Readable::GetBinaryFileContents failed to open file: " + absent},
      {empty, Text, "4 string ", noText + empty},
      {empty, Int, "invalid_argument stoi", noText + empty},
      {empty, Binary, "4 record " + blank, noRecord + empty},
      {ten, Binary, "4 record 0123456789" + blank.substr(10), noRecord + ten},
      {dead, Text, "4 string ", noText + dead},
      {dead, Bool, "invalid_argument stoi", noText + dead},
      {dead, Binary, "4 record " + blank, noRecord + dead},
      {directory, Text, "4 string ", noText + directory},
      {directory, Binary, "4 record " + blank, noRecord + directory},
  };
  LogCapture log;
  for (const Case& each : cases) {
    EXPECT_EQ(Get(each.path, each.hint), each.outcome) << each.path;
    EXPECT_EQ(log.Take(), "3 Readable " + each.record + "\n") << each.path;
    EXPECT_EQ(log.Quietly([&] { return Get(each.path, each.hint); }), each.outcome);
    EXPECT_EQ(log.Take(), "") << each.path;
  }
}

TEST(Readable, RefusesAPropertyWithoutEntryOrFileWhateverTheHint) {
  LogCapture log;
  for (const PropertyValue& hint : {Text, Int, Unsigned, Bool, Binary}) {
    EXPECT_EQ(Get("", hint), "logic_error Readable Missing FuelGaugeProperty filepath");
    log.Quietly([&] { return Get("", hint); });
    EXPECT_EQ(log.Take(), "3 Readable Get: FuelGaugeProperty:4not resettable, filepath empty\n");
    EXPECT_EQ(Outcome([&] { return Readable(FuelGaugeProperty{17}, {}).Get(hint); }),
              "logic_error Readable Missing FuelGaugeProperty definition");
    EXPECT_EQ(log.Take(), "3 Readable Get: Readable Missing FuelGaugeProperty definition: 17\n");
  }
}

}  // namespace
