// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <PropertyInfo.hpp>

#include <sstream>

using namespace dral;

TEST(PropertyInfo, ReadsSixWordsAndDumpsOneLine) {
  const std::pair<std::string, std::string> cases[] = {
      {" A\n0 1\t/x text 1 rest",
       "A , settable=false , resettable=true , location=/x , resetValue=binaryData , "
       "binary=true\n"},
      {"A 1 0 /x text 0",
       "A , settable=true , resettable=false , location=/x , resetValue=text , binary=false\n"},
      {"A yes 1 /x text 1",  // no flag: what follows keeps its value
       "A , settable=false , resettable=false , location=/old , resetValue=old , binary=false\n"},
  };
  for (const auto& [words, dump] : cases) {
    PropertyInfo info{.location = "/old", .resetValue = "old"};
    std::istringstream stream(words);
    EXPECT_EQ(static_cast<bool>(stream >> info), words.find("yes") == std::string::npos);
    std::ostringstream out;
    out << std::boolalpha << info;
    EXPECT_EQ(out.str(), "dral::PropertyInfo:    propertyName=" + dump);
  }
  PropertyInfo number{.resetValue = 5};
  EXPECT_THROW(std::istringstream("A 1 1 /x text 1") >> number, std::bad_variant_access);
  EXPECT_THROW(std::ostringstream() << number, std::bad_variant_access);
}
