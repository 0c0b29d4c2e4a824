// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <LifetimeData.hpp>

#include <numeric>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"

using namespace dral;

const std::string DefaultBytes =
    std::string("\x58\x02\x38\xFF\x62\x11\xC4\x09\xB8\x0B\x24\xFA", 12) + std::string(20, '\0');

TEST(LifetimeData, BinaryFormIsLittleEndianAndSurvivesTheRoundTrip) {
  EXPECT_EQ(Bytes(LifetimeData{}), DefaultBytes);
  std::string every(32, '\0');
  std::iota(every.begin(), every.end(), '\xC0');
  std::istringstream stream(every + "12345678");
  LifetimeData data;
  EXPECT_TRUE(stream >> data);
  EXPECT_EQ(Bytes(data), every);
  EXPECT_EQ(stream.tellg(), 32) << "what follows the record stays in the stream";
  EXPECT_EQ(data.minTemp, static_cast<std::int16_t>(0xC3C2));
}

TEST(LifetimeData, AShortStreamReplacesOnlyTheBytesThatCame) {
  for (const std::size_t length : {31U, 10U, 0U}) {
    const std::string expected = std::string(length, 'x') + DefaultBytes.substr(length);
    LifetimeData data;
    std::istringstream stream(std::string(length, 'x'));
    EXPECT_FALSE(stream >> data);
    EXPECT_EQ(Bytes(data), expected);
    data = {};
    stream = std::istringstream(std::string(length, 'x'));
    stream.exceptions(std::ios::failbit);
    EXPECT_THROW(stream >> data, std::ios::failure);
    EXPECT_EQ(Bytes(data), expected);
  }
}

TEST(LifetimeData, ToStringShowsSignedAndUnsignedFields) {
  EXPECT_EQ((LifetimeData{.maxPackVoltage = 65535}).ToString(),
            "dral::LifetimeData:    maxTemp=600 , minTemp=-200 , maxPackVoltage=65535 , "
            "minPackVoltage=2500 , maxChargeCurrent=3000 , maxDischargeCurrent=-1500\n");
}

TEST(LifetimeData, ValidateRepairsWhatIsOutOfItsLimits) {
  const std::pair<LifetimeData, LifetimeData> cases[] = {
      {{1400, -600, 32767, 0, 32767, -32767}, {1400, -600, 32767, 0, 32767, -32767}},
      {{-600, 1400, 0, 32767, -32767, 32767}, {-600, 1400, 0, 32767, -32767, 32767}},
      {{-601, 1401, 1, 2, -32768, 3}, {600, -200, 1, 2, 3000, 3}},
      {{1401, -601, 32768, 65535, -32768, -32768}, {}},
  };
  LogCapture log(6);
  for (auto [data, repaired] : cases) {
    log.Take();
    data.reserved[19] = repaired.reserved[19] = 7;
    data.Validate();
    EXPECT_EQ(Bytes(data), Bytes(repaired));
  }
  const std::string repair = "6 LifetimeData operator(): LifetimeData::Validate() setting name: ";
  EXPECT_EQ(log.Take(), repair + "maxTemp to default = 600\n" + repair +
                            "minTemp to default = -200\n" + repair +
                            "maxPackVoltage to default = 4450\n" + repair +
                            "minPackVoltage to default = 2500\n" + repair +
                            "maxChargeCurrent to default = 3000\n" + repair +
                            "maxDischargeCurrent to default = -1500\n");
}
