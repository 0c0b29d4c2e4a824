// SPDX-License-Identifier: MIT
#include <Bq27542FuelGauge.hpp>
#include <functional>
#include <memory>
#include <string>

#include "Bare.hpp"
#include "Benchmarks.hpp"

using namespace dral;

namespace {

// By the clock on the wall, since a thread that waits for a lock uses no processor.
void AddForThreads(const std::string& name, const std::function<std::function<bool()>()>& make) {
  benchmark::RegisterBenchmark(name.c_str(),
                               [make](benchmark::State& state) {
                                 const auto operation = make();  // by each thread, for itself
                                 for (auto unused : state) {
                                   static_cast<void>(unused);
                                   if (!operation()) {
                                     state.SkipWithError("the operation failed");
                                     break;
                                   }
                                 }
                               })
      ->UseRealTime()
      ->Threads(2)
      ->Threads(4);
}

}  // namespace

void AddThreads(const std::string& folder) {
  constexpr auto Property = FuelGaugeProperty::VoltageNow;
  const auto make = [folder] {
    return std::make_shared<Bq27542FuelGauge>("", Bq27542FuelGauge::PropertyMapAt(folder));
  };
  const std::string path = Bq27542FuelGauge::PropertyMapAt(folder)->at(Property).location;

  AddForThreads("tmpfs/Floor/int", [path] { return [path] { return bare::ReadText(path); }; });
  AddForThreads("tmpfs/Get-one-object/int",
                [gauge = make()] { return [gauge] { return Get<int>(*gauge, Property); }; });
  AddForThreads("tmpfs/Get-own-object/int",
                [make] { return [gauge = make()] { return Get<int>(*gauge, Property); }; });
}
