// SPDX-License-Identifier: MIT
#include "gauge/Property.hpp"

#include <algorithm>

#include "gauge/Concat.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;
using enum Type;

namespace {

constexpr bool MayLack = true;
constexpr bool Always = false;

// clang-format packs a call tighter than a list.
constexpr Property Row(dral::FuelGaugeProperty id, const auto&... fields) {
  return {id, fields...};
}

// The words of the kernel's power_supply class, as of Linux 7.3
// (Documentation/ABI/testing/sysfs-class-power).
constexpr auto TechnologyWords =
    std::to_array<std::string_view>({"Unknown", "NiMH", "Li-ion", "Li-poly", "LiFe", "NiCd", "LiMn",
                                     "PbAc", "NiZn", "RAM", "ZnAr"});
constexpr auto StatusWords =
    std::to_array<std::string_view>({"Unknown", "Charging", "Discharging", "Not charging", "Full"});
constexpr auto LevelWords =
    std::to_array<std::string_view>({"Unknown", "Critical", "Low", "Normal", "High", "Full"});
// Those that this gauge's driver says come first: they always have a series.
constexpr std::size_t HealthSeries = 7;
constexpr auto HealthWords = std::to_array<std::string_view>(
    {"Unknown", "Good", "Overheat", "Dead", "Over voltage", "Cold", "Calibration required",
     "Under voltage", "Unspecified failure", "Watchdog timer expire", "Safety timer expire",
     "Over current", "Warm", "Cool", "Hot", "No battery", "Blown fuse", "Cell imbalance"});

}  // namespace

// Charges are in coulombs: the convention asks for base units, and finds fault with hours in a name.
// Cycles only grow, until the gauge is replaced: a counter, whose reset Prometheus understands.
constexpr std::array<Property, dral::FuelGaugePropertyNames.size()> Properties = {
    Row(Name, String, units::None, MayLack),
    Row(Technology, String, units::None, Always, Metric{}, TechnologyWords),
    Row(Status, String, units::None, Always,
        Metric{"status", "Charging status: 1 for the state that is."}, StatusWords),
    Row(Present, Bool, units::None, Always, Metric{"present", "Whether a battery is present."}),
    Row(VoltageNow, Int, units::Microvolt, Always, Metric{"voltage_volts", "Battery voltage.", 6}),
    Row(CurrentNow, Int, units::Microampere, Always,
        Metric{"current_amperes",
               "Battery current with the kernel's sign: negative while discharging.", 6}),
    Row(StateOfCharge, Int, units::Percent, Always,
        Metric{"charge_ratio", "Remaining charge, 0 to 1.", 2}),
    Row(ChargeLevel, String, units::None, MayLack,
        Metric{"charge_level", "Charge level: 1 for the level that is."}, LevelWords),
    Row(Temperature, Int, units::TenthDegreeCelsius, Always,
        Metric{"temperature_celsius", "Battery temperature.", 1}),
    Row(NominalAvailableCapacity, Int, units::MicroampereHour, MayLack,
        Metric{"charge_available_coulombs",
               "Charge now available, not compensated for load and temperature.", 4, 36}),
    Row(FullChargeCapacity, Int, units::MicroampereHour, MayLack,
        Metric{"charge_full_coulombs", "Charge when full, compensated for load and temperature.", 4,
               36}),
    Row(CycleCount, Int, units::None, MayLack, Metric{"cycles_total", "Charge cycles so far."}),
    Row(PowerAverage, Int, units::Microwatt, MayLack,
        Metric{"power_average_watts", "Average power.", 6}),
    Row(Health, String, units::None, MayLack,
        Metric{"health", "Battery health: 1 for the state that is."}, HealthWords, HealthSeries),
    Row(TimeToEmpty, Int, units::Second, MayLack,
        Metric{"time_to_empty_seconds", "Time until empty; none unless discharging."}),
    Row(LifetimeData, Lifetime, units::None, MayLack),
    Row(LifetimeDataResetValue, Lifetime, units::None, Always),
};

// Each row is in the place of its property's number, and none is forgotten.
static_assert(std::equal(Properties.begin(), Properties.end(), dral::FuelGaugePropertyNames.begin(),
                         [](const Property& row, auto name) { return row.name == name; }));

dral::PropertyValue Hint(Type type) {
  static const std::array<dral::PropertyValue, 5> hints = {std::string(), 0, 0U, false,
                                                           dral::LifetimeData()};
  return hints.at(static_cast<std::size_t>(type));
}

const Property& FindProperty(std::string_view name) {
  const auto id = dral::PropertyNamed(name);
  if (!id) {
    throw UsageError(Concat("no property named '", name, "'; 'fuelgauge get --help' lists them"));
  }
  return Properties.at(static_cast<std::size_t>(*id));
}

std::string PropertyNames(const std::function<bool(const Property&)>& wanted) {
  std::string names;
  for (const Property& property : Properties) {
    if (wanted(property)) {
      names += Concat(names.empty() ? "" : ", ", property.name);
    }
  }
  return names;
}

}  // namespace fuelgauge
