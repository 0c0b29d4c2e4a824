// SPDX-License-Identifier: MIT
// The descriptor's word reader: what it read whole, it reads again from its own words.
#include <PropertyInfo.hpp>

#include <sstream>

#include "Target.hpp"

void Target(const std::string& input) {
  std::istringstream stream(input);
  dral::PropertyInfo info;
  if (!(stream >> info)) {
    return;
  }
  std::stringstream words;
  words << info.propertyName << ' ' << info.settable << ' ' << info.resettable << ' '
        << info.location << ' ' << std::get<std::string>(info.resetValue) << ' ' << info.binary;
  dral::PropertyInfo again;
  Require(static_cast<bool>(words >> again));
  std::ostringstream dump;
  std::ostringstream dumpAgain;
  dump << info;
  dumpAgain << again;
  Require(dump.str() == dumpAgain.str());
}
