// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <LifetimeData.hpp>

#include <sstream>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"

using dral::LifetimeData;

namespace {

const std::string DefaultBytes =
    std::string("\x58\x02\x38\xFF\x62\x11\xC4\x09\xB8\x0B\x24\xFA", 12) + std::string(20, '\0');

TEST(LifetimeData, BinaryFormIsLittleEndianAndSurvivesTheRoundTrip) {
  EXPECT_EQ(Bytes(LifetimeData{}), DefaultBytes);
  std::string every;
  for (char byte = 'a'; every.size() < 32; ++byte) {
    every += static_cast<char>(byte | (every.size() % 2 != 0 ? 0x80 : 0));
  }
  std::istringstream stream(every + "12345678");
  LifetimeData data;
  EXPECT_TRUE(stream >> data);
  EXPECT_EQ(Bytes(data), every);
  EXPECT_EQ(stream.tellg(), 32) << "what follows the record stays in the stream";
  EXPECT_EQ(data.reserved[0], 'm');
  EXPECT_EQ(data.minTemp, static_cast<std::int16_t>(0xE463));
}

TEST(LifetimeData, AShortStreamReplacesOnlyTheBytesThatCame) {
  for (const std::size_t length : {31U, 10U, 1U, 0U}) {
    std::istringstream stream(std::string(length, 'x'));
    LifetimeData data;
    stream >> data;
    EXPECT_TRUE(stream.fail() && stream.eof()) << length;
    EXPECT_EQ(Bytes(data), std::string(length, 'x') + DefaultBytes.substr(length));
    stream >> data;  // a failed stream leaves the record alone
    EXPECT_EQ(Bytes(data), std::string(length, 'x') + DefaultBytes.substr(length));
    std::istringstream throwing(std::string(length, 'y'));
    throwing.exceptions(std::ios::failbit);
    EXPECT_THROW(throwing >> data, std::ios_base::failure);
    EXPECT_EQ(Bytes(data), std::string(length, 'y') + DefaultBytes.substr(length));
  }
}

TEST(LifetimeData, ToStringShowsSignedAndUnsignedFields) {
  LifetimeData data;
  data.maxPackVoltage = 65535;
  EXPECT_EQ(data.ToString(),
            "dral::LifetimeData:    maxTemp=600 , minTemp=-200 , maxPackVoltage=65535 , "
            "minPackVoltage=2500 , maxChargeCurrent=3000 , maxDischargeCurrent=-1500\n");
}

TEST(LifetimeData, ValidateRepairsWhatIsOutOfItsLimits) {
  struct Case {
    LifetimeData before;
    LifetimeData after;
    std::vector<std::string> repaired;
  };
  const Case cases[] = {
      {{1400, 1400, 32767, 32767, 32767, 32767}, {1400, 1400, 32767, 32767, 32767, 32767}, {}},
      {{-600, -600, 0, 0, -32767, -32767}, {-600, -600, 0, 0, -32767, -32767}, {}},
      {{100, 500, 10, 20, -1, 1}, {100, 500, 10, 20, -1, 1}, {}},
      {{1401, 1401, 32768, 65535, 0, 0},
       {600, -200, 4450, 2500, 0, 0},
       {"maxTemp to default = 600", "minTemp to default = -200", "maxPackVoltage to default = 4450",
        "minPackVoltage to default = 2500"}},
      {{-601, -601, 1, 1, -32768, -32768},
       {600, -200, 1, 1, 3000, -1500},
       {"maxTemp to default = 600", "minTemp to default = -200",
        "maxChargeCurrent to default = 3000", "maxDischargeCurrent to default = -1500"}},
  };
  for (Case each : cases) {
    std::string records;
    for (const std::string& text : each.repaired) {
      records += "6 LifetimeData operator(): LifetimeData::Validate() setting name: " + text + "\n";
    }
    each.before.reserved[19] = each.after.reserved[19] = 7;
    LifetimeData quiet = each.before;
    LogCapture log(6);
    each.before.Validate();
    EXPECT_EQ(Bytes(each.before), Bytes(each.after));
    EXPECT_EQ(log.Take(), records);
    dral::LogOutput::SetLevel(dral::LogLevel{5});
    quiet.Validate();
    EXPECT_EQ(Bytes(quiet), Bytes(each.after));
    EXPECT_EQ(log.Take(), "");
  }
}

}  // namespace
