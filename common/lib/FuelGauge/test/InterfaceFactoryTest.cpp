// SPDX-License-Identifier: MIT
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <Bq27542FuelGauge.hpp>
#include <LifetimeDataParser.hpp>
#include <stdexcept>

#include "support/Outcome.hpp"

using namespace dral;

// Built before main: the library's tables must be there already.
const auto EarlyGauge = InterfaceFactory::Create<FuelGaugeIF, std::string_view>("any", "");
const auto EarlyKeys = LifetimeDataParser::mapping.size();

TEST(InterfaceFactory, EveryNameBuildsTheGauge) {
  for (const char* name : {"Bq27542FuelGauge", "DefaultIF", "", "bq27542fuelgauge"}) {
    const auto gauge = InterfaceFactory::Create<FuelGaugeIF, std::string_view>(name, "");
    EXPECT_NE(dynamic_cast<Bq27542FuelGauge*>(gauge.get()), nullptr) << name;
  }
  EXPECT_EQ((IF<FuelGaugeIF>::ifConstructors<std::string_view>.count("Bq27542FuelGauge")), 1U);
  EXPECT_THROW((InterfaceFactory::Create<FuelGaugeIF, std::string>("DefaultIF", "")),
               std::out_of_range);  // another registry, which is empty
}

TEST(InterfaceFactory, ServesStaticInitialisersAndModulesLoadedLate) {
  EXPECT_EQ(Describe(EarlyGauge->Get(FuelGaugeProperty::LifetimeDataResetValue, 0)),
            "0 record " + Bytes(LifetimeData{}));
  EXPECT_EQ(EarlyKeys, 6U);
  void* const module = ::dlopen(LATE_MODULE, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(module, nullptr) << ::dlerror();
  const auto lateRegistry = reinterpret_cast<const void* (*)()>(::dlsym(module, "LateRegistry"));
  EXPECT_EQ(lateRegistry(), &IF<FuelGaugeIF>::ifConstructors<std::string_view>);
  ::dlclose(module);
}
