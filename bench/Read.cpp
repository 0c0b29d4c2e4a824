// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>

#include "Bare.hpp"
#include "Benchmarks.hpp"

using namespace dral;

namespace {

using Property = FuelGaugeProperty;

template <typename T>
bool ReadByStream(const std::string& path) {
  T value{};
  std::ifstream file(path);
  file >> value;
  benchmark::DoNotOptimize(value);
  return static_cast<bool>(file);
}

bool ReadLineByStream(const std::string& path) {
  std::string line;
  std::ifstream file(path);
  std::getline(file, line);
  benchmark::DoNotOptimize(line);
  return static_cast<bool>(file);
}

// As a user writes it: the whole file through a buffer of the stream's own.
bool ReadRecordByStream(const std::string& path) {
  LifetimeData record;
  std::ifstream file(path, std::ios::binary);
  file >> record;
  benchmark::DoNotOptimize(record);
  return static_cast<bool>(file);
}

bool ReadByScanf(const std::string& path) {
  std::FILE* const file = std::fopen(path.c_str(), "r");
  int value = 0;
  const bool read = file != nullptr && std::fscanf(file, "%d", &value) == 1;
  benchmark::DoNotOptimize(value);
  return file != nullptr && std::fclose(file) == 0 && read;
}

// Every property once, each as its natural type: what `fuelgauge list` does.
bool Sweep(FuelGaugeIF& gauge) {
  bool all =
      Get<bool>(gauge, Property::Present) && Get<LifetimeData>(gauge, Property::LifetimeData);
  for (const auto text : {Property::Name, Property::Technology, Property::Status,
                          Property::ChargeLevel, Property::Health}) {
    all = Get<std::string>(gauge, text) && all;
  }
  for (const auto number :
       {Property::VoltageNow, Property::CurrentNow, Property::StateOfCharge, Property::Temperature,
        Property::NominalAvailableCapacity, Property::FullChargeCapacity, Property::CycleCount,
        Property::PowerAverage, Property::TimeToEmpty}) {
    all = Get<int>(gauge, number) && all;
  }
  return all;
}

bool BareSweep(const PropertyMap& map) {
  bool all = true;
  for (const auto& [property, info] : map) {
    all = (info.binary ? bare::ReadRecord(info.location) : bare::ReadText(info.location)) && all;
  }
  return all;
}

}  // namespace

void AddNumberReads(const std::string& place, FuelGaugeIF& gauge, FuelGaugeProperty property,
                    const std::string& path) {
  Add(place + "/Floor/int", [path] { return bare::ReadText(path); });
  Add(place + "/Get/int", [&gauge, property] { return Get<int>(gauge, property); });
  Add(place + "/ifstream/int", [path] { return ReadByStream<int>(path); });
  Add(place + "/fscanf/int", [path] { return ReadByScanf(path); });
}

void AddReads(const std::string& folder) {
  const auto map = std::make_shared<PropertyMap>(*Bq27542FuelGauge::PropertyMapAt(folder));
  // Shared by the benchmarks, and gone with them.
  static Bq27542FuelGauge gauge("", std::make_unique<PropertyMap>(*map));
  const auto path = [&map](FuelGaugeProperty property) { return map->at(property).location; };

  AddNumberReads("tmpfs", gauge, Property::VoltageNow, path(Property::VoltageNow));

  Add("tmpfs/Floor/bool", [at = path(Property::Present)] { return bare::ReadText(at); });
  Add("tmpfs/Get/bool", [] { return Get<bool>(gauge, Property::Present); });
  Add("tmpfs/ifstream/bool", [at = path(Property::Present)] { return ReadByStream<bool>(at); });

  Add("tmpfs/Floor/string", [at = path(Property::Status)] { return bare::ReadText(at); });
  Add("tmpfs/Get/string", [] { return Get<std::string>(gauge, Property::Status); });
  Add("tmpfs/ifstream/string", [at = path(Property::Status)] { return ReadLineByStream(at); });

  const std::string record = path(Property::LifetimeData);
  Add("tmpfs/Floor/record", [record] { return bare::ReadRecord(record); });
  Add("tmpfs/Get/record", [] { return Get<LifetimeData>(gauge, Property::LifetimeData); });
  Add("tmpfs/ifstream/record", [record] { return ReadRecordByStream(record); });

  Add("tmpfs/Floor/sweep", [map] { return BareSweep(*map); });
  Add("tmpfs/Get/sweep", [] { return Sweep(gauge); });
}
