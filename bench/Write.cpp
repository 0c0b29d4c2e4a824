// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "Bare.hpp"
#include "Benchmarks.hpp"

using namespace dral;

namespace {

// These two do not ask whether the file is there, and so may take less than the floor.
bool WriteByStream(const std::string& path, const LifetimeData& record) {
  std::ofstream file(path, std::ios::binary);
  file << record;
  return static_cast<bool>(file);
}

bool WriteByFwrite(const std::string& path, const std::string& bytes) {
  std::FILE* const file = std::fopen(path.c_str(), "w");
  const bool written =
      file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return file != nullptr && std::fclose(file) == 0 && written;
}

}  // namespace

void AddWrites(const std::string& folder) {
  constexpr auto Property = FuelGaugeProperty::LifetimeData;
  auto map = Bq27542FuelGauge::PropertyMapAt(folder);
  const std::string path = map->at(Property).location;
  const auto gauge = std::make_shared<Bq27542FuelGauge>("", std::move(map));
  std::ostringstream bytes;
  bytes << LifetimeData{};

  Add("tmpfs/Floor/write", [path, text = bytes.str()] { return bare::Write(path, text); });
  Add("tmpfs/Set/write",
      [gauge] { return gauge->Set(Property, LifetimeData{}) == FuelGaugeStatus::Success; });
  Add("tmpfs/Reset/write", [gauge] { return gauge->Reset(Property) == FuelGaugeStatus::Success; });
  Add("tmpfs/ofstream/write", [path] { return WriteByStream(path, LifetimeData{}); });
  Add("tmpfs/fwrite/write", [path, text = bytes.str()] { return WriteByFwrite(path, text); });
}
