// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <Bq27542FuelGauge.hpp>

#include <algorithm>
#include <chrono>
#include <future>
#include <locale>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::Bq27542FuelGauge;
using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;
using dral::LifetimeData;
using dral::PropertyInfo;
using dral::PropertyMap;
using dral::PropertyValue;

namespace {

constexpr auto Soon = std::chrono::seconds(20);  // for what would else never come

std::unique_ptr<PropertyMap> MapOf(FuelGaugeProperty property, PropertyInfo info) {
  return std::make_unique<PropertyMap>(PropertyMap{{property, std::move(info)}});
}

TEST(Bq27542FuelGauge, LogsItsConstruction) {
  const std::string constructor =
      "8 Bq27542FuelGauge Bq27542FuelGauge: Bq27542FuelGauge constructor ";
  const TemporaryFolder folder;
  LogCapture log;
  const Bq27542FuelGauge standard("");
  EXPECT_EQ(log.Take(), constructor + "using default property map \n");
  Bq27542FuelGauge overridden(folder.At("none"), Bq27542FuelGauge::PropertyMapAt("/nowhere"));
  EXPECT_EQ(log.Take(), constructor + "using passed in property map \n" + constructor +
                            "overwriting lifetime reset data " + folder.At("none") +
                            "\n3 LifetimeDataParser LifetimeDataParser: Failed to open file : " +
                            folder.At("none") + "\n");
  overridden.UpdateResetPropertyValues("");
  EXPECT_EQ(log.Take(), "");
}

TEST(Bq27542FuelGauge, AnswersTheResetValueAsTheMapHoldsIt) {
  const auto get = [](std::unique_ptr<PropertyMap> map) {
    return Describe(Bq27542FuelGauge("", std::move(map))
                        .Get(FuelGaugeProperty::LifetimeDataResetValue, "ignored"));
  };
  const LogCapture log;
  EXPECT_EQ(get(nullptr), "0 record " + Bytes(LifetimeData{}));
  EXPECT_EQ(get(std::make_unique<PropertyMap>()), "0 record " + Bytes(LifetimeData{}));
  EXPECT_EQ(get(MapOf(FuelGaugeProperty::LifetimeData, {.resetValue = "text"})), "0 string text");
}

TEST(Bq27542FuelGauge, AnOverrideNeedsARecordToStartFrom) {
  const TemporaryFolder folder;
  const std::string file = folder.Write("override", "maxTemp 1");
  const LogCapture log;
  LifetimeData start{9, 9, 9, 9, 9, 9};
  start.reserved.fill(9);
  Bq27542FuelGauge started(file, MapOf(FuelGaugeProperty::LifetimeData, {.resetValue = start}));
  start.maxTemp = 1;
  EXPECT_EQ(Describe(started.Get(FuelGaugeProperty::LifetimeDataResetValue, 0)),
            "0 record " + Bytes(start));
  EXPECT_THROW(Bq27542FuelGauge(file, std::make_unique<PropertyMap>()), std::bad_variant_access);
  EXPECT_THROW(Bq27542FuelGauge(file, MapOf(FuelGaugeProperty::LifetimeData, {})),
               std::bad_variant_access);
  Bq27542FuelGauge gauge("");
  EXPECT_THROW(gauge.UpdateResetPropertyValues(folder.Write("bad", "maxTemp 5 minTemp x")),
               std::invalid_argument);
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::LifetimeDataResetValue, 0)),
            "0 record " + Bytes(LifetimeData{}))
      << "a failed override changes nothing";
}

TEST(Bq27542FuelGauge, TurnsExceptionsIntoLoggedFailures) {
  Bq27542FuelGauge gauge("", std::make_unique<PropertyMap>());
  LogCapture log(3);
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty{17}, "abc")), "2 string abc");
  EXPECT_EQ(log.Take(),
            "3 Readable Get: Readable Missing FuelGaugeProperty definition: 17\n"
            "3 Bq27542FuelGauge DoGet: Failed to get property: 17ex: Readable Missing "
            "FuelGaugeProperty definition\n");
  EXPECT_EQ(Describe(gauge.Set(FuelGaugeProperty::LifetimeDataResetValue, 1)), "2");
  EXPECT_EQ(log.Take(),
            "3 Writable WriteData: Writable Missing FuelGaugeProperty definition: 16\n"
            "3 Bq27542FuelGauge DoSet: Failed to set property: 16ex: Writable Missing "
            "FuelGaugeProperty definition\n");
  EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty::LifetimeData)), "2");
  EXPECT_EQ(log.Take(),
            "3 Writable WriteData: Writable Missing FuelGaugeProperty definition: 15\n"
            "3 Bq27542FuelGauge DoReset: Failed to reset property: 15ex: Writable Missing "
            "FuelGaugeProperty definition\n");
  dral::LogOutput::SetLevel(dral::LogLevel{2});
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty{99}, 5)), "2 int 5");
  EXPECT_EQ(Describe(gauge.Set(FuelGaugeProperty{99}, 5)), "2");
  EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty{99})), "2");
  gauge.DumpPropertyMap();
  EXPECT_EQ(log.Take(), "");
}

TEST(Bq27542FuelGauge, PassesStatusesOnAndTurnsBadNumbersIntoFailures) {
  const TemporaryFolder folder;
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  folder.Write("technology", "");
  folder.Write("temp", "hot\n");
  LogCapture log(3);
  const auto lines = [&log] {
    const std::string records = log.Take();
    return std::count(records.begin(), records.end(), '\n');
  };
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::Name, "hint")), "3 string ");
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::Technology, "hint")), "4 string ");
  EXPECT_EQ(Describe(gauge.Set(FuelGaugeProperty::LifetimeData, "x")), "3");
  EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty::LifetimeData)), "3");
  EXPECT_EQ(lines(), 4) << "none of them the driver's own";
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::Technology, true)), "2 bool true");
  EXPECT_EQ(lines(), 2);
  EXPECT_EQ(Describe(gauge.Get(FuelGaugeProperty::Temperature, 77U)), "2 uint 77");
  EXPECT_EQ(log.Take(), "3 Bq27542FuelGauge DoGet: Failed to get property: 8ex: stoul\n");
}

TEST(Bq27542FuelGauge, TheDefaultPropertiesAreReadOnlyButForTheRecord) {
  const TemporaryFolder folder;
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  folder.Write("lifetime_data", "old");
  folder.Write("voltage_now", "4200\n");
  LogCapture log(3);
  for (std::uint32_t number = 0; number < 15; ++number) {
    const std::string record =
        "3 Writable WriteData: FuelGaugeProperty:" + std::to_string(number) + "not settable\n";
    EXPECT_EQ(Describe(gauge.Set(FuelGaugeProperty{number}, "x")), "2");
    EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty{number})), "2");
    EXPECT_EQ(log.Take(), record + record);
  }
  EXPECT_EQ(folder.Read("voltage_now"), "4200\n");
  EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty::LifetimeData)), "0");
  EXPECT_EQ(folder.Read("lifetime_data"), Bytes(LifetimeData{}));
}

TEST(Bq27542FuelGauge, DumpsEveryEntry) {
  LogCapture log(3);
  Bq27542FuelGauge("").DumpPropertyMap();
  const std::string dump = log.Take();
  EXPECT_EQ(std::count(dump.begin(), dump.end(), '\n'), 16 * 3);
  int number = 0;
  for (const char* name :
       {"Manufacturer", "Technology", "Status", "Present", "VoltageNow", "CurrentNow",
        "StateOfCharge", "ChargeLevel", "Temperature", "NominalAvailableCapacity",
        "FullChargeCapacity", "CycleCount", "PowerAverage", "Health", "TimeToEmpty"}) {
    EXPECT_NE(dump.find("Type: " + std::to_string(number++) +
                        " : dral::PropertyInfo:    propertyName=" + name +
                        " , settable=0 , resettable=0 , "),
              std::string::npos)
        << name;
  }
  EXPECT_NE(
      dump.find("3 Bq27542FuelGauge DumpPropertyMap: Type: 15 : dral::PropertyInfo:    "
                "propertyName=LifetimeData , settable=1 , resettable=1 , location=/sys/class/"
                "power_supply/bq27542-0/lifetime_data , resetValue=binaryData , binary=1\n\n\n"),
      std::string::npos);
  const Bq27542FuelGauge odd("", MapOf(FuelGaugeProperty::Name, {.resetValue = 5}));
  EXPECT_THROW(odd.DumpPropertyMap(), std::bad_variant_access);
}

TEST(Bq27542FuelGauge, ReleasesTheLockBeforeItLogs) {
  const TemporaryFolder folder;
  folder.Write("temp", "251\n");
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  const LogCapture log(3);
  std::vector<std::string> answers;
  dral::LogOutput::SetSink([&](const dral::LogRecord& record) {
    if (record.function.substr(0, 2) == "Do") {
      auto read = std::async(std::launch::async,
                             [&] { return gauge.Get<int>(FuelGaugeProperty::Temperature); });
      answers.push_back(read.wait_for(Soon) == std::future_status::ready ? Describe(read.get())
                                                                         : "blocked");
    }
  });
  gauge.Get<int>(FuelGaugeProperty{17});
  gauge.Set(FuelGaugeProperty{17}, 1);
  gauge.Reset(FuelGaugeProperty{17});
  EXPECT_EQ(answers, std::vector<std::string>(3, "0 int 251"));
}

TEST(Bq27542FuelGauge, AnswersTheResetValueWhileAReadHoldsTheLock) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo(folder.At("temp").c_str(), 0600), 0);
  Bq27542FuelGauge gauge("", Bq27542FuelGauge::PropertyMapAt(folder.At("")));
  auto slow = std::async(std::launch::async,
                         [&] { return gauge.Get<int>(FuelGaugeProperty::Temperature); });
  std::ofstream pipe(folder.At("temp"));  // opens once the reader has; it then waits for the text
  auto quick = std::async(std::launch::async, [&] {
    return gauge.Get<LifetimeData>(FuelGaugeProperty::LifetimeDataResetValue).first;
  });
  EXPECT_EQ(quick.wait_for(Soon), std::future_status::ready);
  pipe << "251\n" << std::flush;
  pipe.close();
  EXPECT_EQ(Describe(slow.get()), "0 int 251");
}

TEST(Bq27542FuelGauge, IgnoresTheGlobalLocale) {
  struct Grouping : std::numpunct<char> {
    std::string do_grouping() const override { return "\1"; }
    char do_thousands_sep() const override { return ','; }
  };
  // A file stream that asks it reads nothing.
  struct Broken : std::codecvt<char, char, std::mbstate_t> {
    using State = std::mbstate_t;
    bool do_always_noconv() const noexcept override { return false; }
    result do_in(State&, const char*, const char*, const char*&, char*, char*,
                 char*&) const override {
      return error;
    }
  };
  const TemporaryFolder folder;
  Bq27542FuelGauge gauge("", MapOf(FuelGaugeProperty{4200},
                                   {.settable = true, .location = folder.Write("value", "")}));
  const std::string overrideFile = folder.Write("override", "maxTemp 1");
  LogCapture log(3);
  const std::locale grouping(std::locale(), new Grouping);
  const std::locale before = std::locale::global(std::locale(grouping, new Broken));
  std::string answers;
  for (const PropertyValue& value : {PropertyValue(4200), PropertyValue(LifetimeData{})}) {
    answers += Describe(gauge.Set(FuelGaugeProperty{4200}, value)) + ", ";
    answers += Describe(gauge.Get(FuelGaugeProperty{4200}, value)) + ", ";
  }
  answers +=
      Describe(Bq27542FuelGauge(overrideFile).Get(FuelGaugeProperty::LifetimeDataResetValue, 0));
  gauge.Get(FuelGaugeProperty{12345}, 0);
  gauge.DumpPropertyMap();
  const std::string text = LifetimeData{}.ToString();
  std::locale::global(before);
  EXPECT_EQ(answers, "0, 0 int 4200, 0, 0 record " + Bytes(LifetimeData{}) + ", 0 record " +
                         Bytes(LifetimeData{.maxTemp = 1}));
  EXPECT_EQ(text, LifetimeData{}.ToString());
  const std::string records = log.Take();
  for (const char* part : {"definition: 12345\n", "property: 12345ex: ", "Type: 4200 : "}) {
    EXPECT_NE(records.find(part), std::string::npos) << records;
  }
}

}  // namespace
