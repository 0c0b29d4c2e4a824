// SPDX-License-Identifier: MIT
#include "PropertyInfo.hpp"

#include <istream>
#include <ostream>
#include <string_view>
#include <variant>

namespace dral {

std::ostream& operator<<(std::ostream& os, const PropertyInfo& info) {
  os << "dral::PropertyInfo: "
     << "   propertyName=" << info.propertyName << " , settable=" << info.settable
     << " , resettable=" << info.resettable << " , location=" << info.location << " , resetValue=";
  os << (info.binary ? std::string_view("binaryData") : std::get<std::string>(info.resetValue));
  return os << " , binary=" << info.binary << std::endl;
}

std::istream& operator>>(std::istream& is, PropertyInfo& info) {
  is >> info.propertyName >> info.settable >> info.resettable >> info.location;
  return is >> std::get<std::string>(info.resetValue) >> info.binary;
}

}  // namespace dral
