// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <FuelGaugeNames.hpp>

#include <algorithm>
#include <chrono>
#include <future>
#include <stdexcept>
#include <vector>

#include "support/FolderGauge.hpp"

using namespace dral;

constexpr auto Soon = std::chrono::seconds(20);  // for what would else never come
constexpr auto ResetValue = FuelGaugeProperty::LifetimeDataResetValue;

class Bq27542FuelGaugeTest : public ::testing::Test, protected FolderGauge {};

TEST_F(Bq27542FuelGaugeTest, LogsItsConstruction) {
  const std::string constructor =
      "8 Bq27542FuelGauge Bq27542FuelGauge: Bq27542FuelGauge constructor ";
  const std::string none = folder.At("none");
  LogOutput::SetLevel(LogLevel{8});
  const Bq27542FuelGauge standard("");
  EXPECT_EQ(log.Take(), constructor + "using default property map \n");
  Bq27542FuelGauge overridden(none, Bq27542FuelGauge::PropertyMapAt("/nowhere"));
  EXPECT_EQ(log.Take(),
            constructor + "using passed in property map \n" + constructor +
                "overwriting lifetime reset data " + none +
                "\n3 LifetimeDataParser LifetimeDataParser: Failed to open file : " + none + "\n");
  overridden.UpdateResetPropertyValues("");
  EXPECT_EQ(log.Take(), "");
  auto map = Bq27542FuelGauge::PropertyMapAt("/nowhere");
  std::size_t kept = 0;
  LogOutput::SetSink([&kept, &map = *map](const LogRecord& /*record*/) { kept = map.size(); });
  const Bq27542FuelGauge copied(none, std::move(map));
  EXPECT_EQ(kept, 16U) << "a map that is passed in is copied, not moved from";
}

TEST_F(Bq27542FuelGaugeTest, AnswersTheResetValueOfItsMapAndTheOverrideFile) {
  const auto property = FuelGaugeProperty::LifetimeData;
  const std::string file = folder.Write("override", "maxTemp 1");
  const auto get = [](const std::string& path, std::unique_ptr<PropertyMap> map) {
    return Describe(Bq27542FuelGauge(path, std::move(map)).Get(ResetValue, "ignored"));
  };
  LifetimeData start{9, 9, 9, 9, 9, 9};
  start.reserved.fill(9);
  const std::string standard = "0 record " + Bytes(LifetimeData{});
  EXPECT_EQ(get("", nullptr), standard);
  EXPECT_EQ(get("", std::make_unique<PropertyMap>()), standard);
  EXPECT_EQ(get("", MapOf(property, {.resetValue = "text"})), "0 string text");
  auto map = MapOf(property, {.resetValue = start});
  start.maxTemp = 1;
  EXPECT_EQ(get(file, std::move(map)), "0 record " + Bytes(start));
  EXPECT_THROW(get(file, std::make_unique<PropertyMap>()), std::bad_variant_access);
  EXPECT_THROW(gauge.UpdateResetPropertyValues(folder.Write("bad", "maxTemp 5 minTemp x")),
               std::invalid_argument);
  EXPECT_EQ(Describe(gauge.Get(ResetValue, 0)), standard) << "a failed override changes nothing";
  EXPECT_EQ(Describe(gauge.Get<int>(ResetValue)), "2 int 0") << "an answer of another type";
}

TEST_F(Bq27542FuelGaugeTest, TurnsExceptionsIntoLoggedFailures) {
  const FuelGaugeProperty unknown{17};
  Bq27542FuelGauge noFile("", MapOf(unknown, {.settable = true}));
  std::string names(NameOf(unknown));
  for (std::uint32_t status = 0; status < 6; ++status) {
    names.append(NameOf(FuelGaugeStatus{status})).append(",");
  }
  EXPECT_EQ(names, "Success,,Failure,FileError,NoData,,");
  EXPECT_EQ(Describe(gauge.Get(unknown, "abc")), "2 string abc");
  EXPECT_EQ(Describe(gauge.Set(ResetValue, 1)), "2");
  EXPECT_EQ(Describe(gauge.Reset(unknown)), "2");
  EXPECT_EQ(Describe(noFile.Get(unknown, LifetimeData{})), "2 record " + Bytes({}));
  EXPECT_EQ(Describe(noFile.Set(unknown, 1)), "3 ENOENT");
  EXPECT_EQ(Describe(gauge.Reset(FuelGaugeProperty::Name)), "2");
  EXPECT_EQ(log.Take(),
            "3 Readable Get: Readable Missing FuelGaugeProperty definition: 17\n"
            "3 Bq27542FuelGauge DoGet: Failed to get property: 17ex: Readable Missing "
            "FuelGaugeProperty definition\n"
            "3 Writable WriteData: Writable Missing FuelGaugeProperty definition: 16\n"
            "3 Bq27542FuelGauge DoSet: Failed to set property: 16ex: Writable Missing "
            "FuelGaugeProperty definition\n"
            "3 Writable WriteData: Writable Missing FuelGaugeProperty definition: 17\n"
            "3 Bq27542FuelGauge DoReset: Failed to reset property: 17ex: Writable Missing "
            "FuelGaugeProperty definition\n"
            "3 Readable Get: FuelGaugeProperty:17not resettable, filepath empty\n"
            "3 Bq27542FuelGauge DoGet: Failed to get property: 17ex: Readable Missing "
            "FuelGaugeProperty filepath\n"
            "3 Writable WriteData: Writable::Set failed - file not found: \n"
            "3 Writable WriteData: FuelGaugeProperty:0not settable\n");
}

TEST_F(Bq27542FuelGaugeTest, TheDefaultPropertiesAreReadOnlyButForTheRecord) {
  Bq27542FuelGauge("").DumpPropertyMap();
  const std::string dump = log.Take();
  EXPECT_EQ(std::ranges::count(dump, '\n'), 16 * 3);
  std::istringstream names(
      "Manufacturer manufacturer Technology technology Status status Present present "
      "VoltageNow voltage_now CurrentNow current_now StateOfCharge capacity "
      "ChargeLevel capacity_level Temperature temp NominalAvailableCapacity charge_now "
      "FullChargeCapacity charge_full CycleCount cycle_count PowerAverage power_avg "
      "Health health TimeToEmpty time_to_empty_now LifetimeData lifetime_data");
  std::string name, file, info;
  using Gauge = Bq27542FuelGauge;
  std::stringstream constants;
  constants << Gauge::NamePropertyInfo << Gauge::TechnologyPropertyInfo << Gauge::StatusPropertyInfo
            << Gauge::PresentPropertyInfo << Gauge::VoltageNowPropertyInfo
            << Gauge::CurrentNowPropertyInfo << Gauge::StateOfChargePropertyInfo
            << Gauge::ChargeLevelPropertyInfo << Gauge::TemperaturePropertyInfo
            << Gauge::NominalAvailableCapacityPropertyInfo << Gauge::FullChargeCapacityPropertyInfo
            << Gauge::CycleCountPropertyInfo << Gauge::PowerAveragePropertyInfo
            << Gauge::HealthPropertyInfo << Gauge::TimeToEmptyPropertyInfo
            << Gauge::LifetimeDataPropertyInfo;
  for (std::uint32_t number = 0; number < 16; ++number) {
    const bool record = number == 15;
    const std::string flag = record ? "1" : "0";
    names >> name >> file;
    std::getline(constants, info);
    const std::string line = "dral::PropertyInfo:    propertyName=" + name + " , settable=" + flag +
                             " , resettable=" + flag +
                             " , location=/sys/class/power_supply/bq27542-0/" + file +
                             " , resetValue=" + (record ? "binaryData" : "") + " , binary=" + flag;
    EXPECT_EQ(info, line);
    EXPECT_NE(dump.find("3 Bq27542FuelGauge DumpPropertyMap: Type: " + std::to_string(number) +
                        " : " + line + "\n\n\n"),
              std::string::npos);
    EXPECT_EQ(Describe(gauge.Set(FuelGaugeProperty{number}, 5)), record ? "3 ENOENT" : "2");
  }
}

TEST_F(Bq27542FuelGaugeTest, ReleasesTheLockBeforeItLogs) {
  folder.Write("temp", "251\n");
  const auto temperature = [&] { return Describe(gauge.Get<int>(FuelGaugeProperty::Temperature)); };
  std::vector<std::string> answers;
  LogOutput::SetSink([&](const LogRecord& record) {
    if (record.function.substr(0, 2) == "Do") {
      auto read = std::async(std::launch::async, temperature);
      answers.push_back(read.wait_for(Soon) == std::future_status::ready ? read.get() : "blocked");
    }
  });
  static_cast<void>(gauge.Get<int>(FuelGaugeProperty{17}));
  static_cast<void>(gauge.Set(FuelGaugeProperty{17}, 1));
  static_cast<void>(gauge.Reset(FuelGaugeProperty{17}));
  EXPECT_EQ(answers, std::vector<std::string>(3, "0 int 251"));
}

TEST_F(Bq27542FuelGaugeTest, AnswersTheResetValueWhileAReadHoldsTheLock) {
  ASSERT_EQ(::mkfifo(folder.At("temp").c_str(), 0600), 0);
  auto slow = std::async(std::launch::async,
                         [&] { return Describe(gauge.Get<int>(FuelGaugeProperty::Temperature)); });
  std::ofstream pipe(folder.At("temp"));  // opens once the reader has; it then waits for the text
  auto quick = std::async(std::launch::async, [&] { return gauge.Get<LifetimeData>(ResetValue); });
  EXPECT_EQ(quick.wait_for(Soon), std::future_status::ready);
  pipe << "251\n" << std::flush;
  pipe.close();
  EXPECT_EQ(slow.get(), "0 int 251");
}

TEST_F(Bq27542FuelGaugeTest, IgnoresTheGlobalLocale) {
  struct Grouping : std::numpunct<char> {
    std::string do_grouping() const override { return "\1"; }
    char do_thousands_sep() const override { return ','; }
  };
  // White space is none.
  static const std::ctype_base::mask nothing[std::ctype<char>::table_size]{};
  const FuelGaugeProperty value{4200};
  const std::string overrideFile = folder.Write("override", "maxTemp 1");
  Bq27542FuelGauge odd("", MapOf(value, {.settable = true, .location = folder.Write("value", "")}));
  const std::locale grouping(std::locale(), new Grouping);
  const std::locale before =
      std::locale::global(std::locale(grouping, new std::ctype<char>(nothing)));
  std::string answers = Describe(odd.Set(value, 4200)) + ", ";
  answers += Describe(odd.Get(value, 0)) + ", ";
  answers += Describe(Bq27542FuelGauge(overrideFile).Get(ResetValue, 0));
  answers += ", " + Describe(odd.Get(FuelGaugeProperty{12345}, 0));
  const std::string text = LifetimeData{}.ToString();
  std::locale::global(before);
  EXPECT_EQ(answers, "0, 0 int 4200, 0 record " + Bytes(LifetimeData{.maxTemp = 1}) + ", 2 int 0");
  EXPECT_EQ(text, LifetimeData{}.ToString());
  EXPECT_NE(log.Take().find("definition: 12345\n"), std::string::npos);
}
