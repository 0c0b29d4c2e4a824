// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <FuelGaugeIF.hpp>

#include "support/Outcome.hpp"

using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;
using dral::PropertyValue;

namespace {

// Answers each hook in a way of its own.
class OtherGauge : public dral::FuelGaugeIF {
 protected:
  FuelGaugeStatus DoSet(FuelGaugeProperty, PropertyValue value) override {
    if (const int* number = std::get_if<int>(&value); number != nullptr && *number == 13) {
      throw 13;  // NOLINT(hicpp-exception-baseclass): what is no std::exception comes out as it is
    }
    value = "changed";
    return FuelGaugeStatus::NoData;
  }
  std::pair<FuelGaugeStatus, PropertyValue> DoGet(FuelGaugeProperty property,
                                                  PropertyValue hint) override {
    if (property == FuelGaugeProperty::Name) {
      return {FuelGaugeStatus::Success, 42};
    }
    return {FuelGaugeStatus::FileError, std::move(hint)};
  }
  FuelGaugeStatus DoReset(FuelGaugeProperty) override { return FuelGaugeStatus::FileError; }
};

TEST(FuelGaugeIF, PassesOnWhatTheHooksAnswer) {
  OtherGauge gauge;
  const PropertyValue value = "mine";
  EXPECT_EQ(gauge.Set(FuelGaugeProperty::Name, value), FuelGaugeStatus::NoData);
  EXPECT_EQ(std::get<std::string>(value), "mine");
  EXPECT_THROW(gauge.Set(FuelGaugeProperty::Name, 13), int);
  EXPECT_EQ(gauge.Reset(FuelGaugeProperty::Name), FuelGaugeStatus::FileError);
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::Health, true)), "3 bool true");
}

TEST(FuelGaugeIF, TypedGetRefusesAnAnswerOfAnotherType) {
  OtherGauge gauge;
  EXPECT_EQ(Describe(gauge.Get<int>(FuelGaugeProperty::Name)), "0 int 42");
  EXPECT_EQ(Describe(gauge.Get<unsigned int>(FuelGaugeProperty::Name)), "2 uint 0");
  EXPECT_EQ(Describe(gauge.Get<std::string>(FuelGaugeProperty::Health)), "3 string ");
}

}  // namespace
