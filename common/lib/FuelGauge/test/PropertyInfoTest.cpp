// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <Bq27542FuelGauge.hpp>
#include <PropertyInfo.hpp>

#include <sstream>

using dral::Bq27542FuelGauge;
using dral::PropertyInfo;

namespace {

TEST(PropertyInfo, DumpIsOneLine) {
  struct Case {
    PropertyInfo info;
    bool words;
    std::string line;
  };
  const Case cases[] = {
      {Bq27542FuelGauge::LifetimeDataPropertyInfo, false,
       "dral::PropertyInfo:    propertyName=LifetimeData , settable=1 , resettable=1 , "
       "location=/sys/class/power_supply/bq27542-0/lifetime_data , resetValue=binaryData , "
       "binary=1\n"},
      {Bq27542FuelGauge::TemperaturePropertyInfo, false,
       "dral::PropertyInfo:    propertyName=Temperature , settable=0 , resettable=0 , "
       "location=/sys/class/power_supply/bq27542-0/temp , resetValue= , binary=0\n"},
      {{"N", true, false, "", "text", true},
       true,
       "dral::PropertyInfo:    propertyName=N , settable=true , resettable=false , location= , "
       "resetValue=binaryData , binary=true\n"},
      {{"N", false, true, "/x", "text", false},
       true,
       "dral::PropertyInfo:    propertyName=N , settable=false , resettable=true , location=/x , "
       "resetValue=text , binary=false\n"},
  };
  for (const Case& each : cases) {
    std::ostringstream stream;
    stream << (each.words ? std::boolalpha : std::noboolalpha) << each.info;
    EXPECT_EQ(stream.str(), each.line);
  }
}

TEST(PropertyInfo, DumpAndReaderStopAtAResetValueThatIsNoString) {
  PropertyInfo info{"N", false, false, "/x", 5, false};
  std::ostringstream out;
  EXPECT_THROW(out << info, std::bad_variant_access);
  EXPECT_EQ(out.str(),
            "dral::PropertyInfo:    propertyName=N , settable=0 , resettable=0 , location=/x , "
            "resetValue=");
  std::istringstream in("M 1 1 /y text 1");
  EXPECT_THROW(in >> info, std::bad_variant_access);
  EXPECT_EQ(info.propertyName + info.location, "M/y");
  EXPECT_TRUE(info.settable && info.resettable && !info.binary);
}

TEST(PropertyInfo, ReaderTakesSixWords) {
  PropertyInfo info;
  std::istringstream good(" VoltageNow\n1 0\t/sys/x reset 1 rest");
  EXPECT_TRUE(good >> info);
  EXPECT_EQ(info.propertyName, "VoltageNow");
  EXPECT_EQ(info.location, "/sys/x");
  EXPECT_EQ(std::get<std::string>(info.resetValue), "reset");
  EXPECT_TRUE(info.settable && !info.resettable && info.binary);
  std::istringstream bad("Name yes 0 /sys/y reset 0");
  EXPECT_FALSE(bad >> info);
  EXPECT_EQ(info.propertyName, "Name");
  EXPECT_EQ(info.location, "/sys/x") << "fields behind the fault keep their values";
}

}  // namespace
