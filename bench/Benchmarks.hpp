// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <FuelGaugeIF.hpp>
#include <string>

/// Each adds benchmarks under names of three parts, PLACE/WHO/WHAT, such as `tmpfs/Get/int`: those that
/// differ in WHO alone do the same work. What is done by `Floor` is the bare system calls.

/// @p folder holds a gauge's files, and outlives the run.
void AddReads(const std::string& folder);
void AddWrites(const std::string& folder);
void AddCreate();
void AddSysfs();

/// The ways to read the number in the file @p path, by themselves and as @p property of @p gauge.
void AddNumberReads(const std::string& place, dral::FuelGaugeIF& gauge,
                    dral::FuelGaugeProperty property, const std::string& path);

/// Device attributes as libsystemd reads them; in builds that found it.
void AddSdDevice(const std::string& place, const std::string& device, const std::string& attribute);

/// Adds a benchmark of an operation that answers whether it went well. One that did not would be
/// measured as a very fast one, so it ends the benchmark with an error.
template <typename Operation>
benchmark::internal::Benchmark* Add(const std::string& name, Operation operation) {
  return benchmark::RegisterBenchmark(name.c_str(), [operation](benchmark::State& state) {
    for (auto unused : state) {
      static_cast<void>(unused);
      if (!operation()) {
        state.SkipWithError("the operation failed");
        break;
      }
    }
  });
}

/// Reads a property as a @p T.
template <typename T>
bool Get(dral::FuelGaugeIF& gauge, dral::FuelGaugeProperty property) {
  auto [status, value] = gauge.Get<T>(property);
  benchmark::DoNotOptimize(value);
  return status == dral::FuelGaugeStatus::Success;
}
