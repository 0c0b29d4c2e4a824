// SPDX-License-Identifier: MIT
// Many threads, for KESP_SOAK_OPERATIONS operations in all; without it for 20000.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <future>
#include <vector>

#include "support/FolderGauge.hpp"

using namespace dral;

constexpr int Threads = 4;
constexpr auto Property = FuelGaugeProperty::LifetimeData;

static int Rounds() {
  const char* const operations = std::getenv("KESP_SOAK_OPERATIONS");
  return (operations != nullptr ? std::atoi(operations) : 20000) / Threads / 3;
}

// Each thread writes records of its own number throughout, resets, and reads; all of them on the one
// gauge, or each on its own over the same file, which may then be empty.
// @return how many answers were wrong
static int RunThreads(FolderGauge& shared, bool oneGauge) {
  shared.folder.Write("lifetime_data", Bytes({}));
  std::atomic<int> wrong = 0;
  std::vector<std::future<void>> threads;
  for (std::int16_t number = 1; number <= Threads; ++number) {
    threads.push_back(std::async(std::launch::async, [&, number] {
      Bq27542FuelGauge own("", Bq27542FuelGauge::PropertyMapAt(shared.folder.path));
      Bq27542FuelGauge& gauge = oneGauge ? shared.gauge : own;
      LifetimeData record{.maxTemp = number};
      record.reserved.fill(static_cast<std::uint8_t>(number));
      for (int round = 0; round < Rounds(); ++round) {
        wrong += gauge.Set(Property, record) == FuelGaugeStatus::Success ? 0 : 1;
        wrong += gauge.Reset(Property) == FuelGaugeStatus::Success ? 0 : 1;
        const auto [status, read] = gauge.Get<LifetimeData>(Property);
        const bool torn = read.reserved[19] != (read.maxTemp == 600 ? 0 : read.maxTemp);
        wrong += torn && oneGauge ? 1 : 0;
        const bool empty = status == FuelGaugeStatus::NoData && !oneGauge;
        wrong += status == FuelGaugeStatus::Success || empty ? 0 : 1;
      }
    }));
  }
  for (auto& thread : threads) {
    thread.get();
  }
  return wrong;
}

TEST(Threads, OperationsOnOneObjectNeverOverlap) {
  FolderGauge shared;
  const auto files = OpenFiles();
  EXPECT_EQ(RunThreads(shared, true), 0);
  EXPECT_EQ(OpenFiles(), files);
  EXPECT_EQ(shared.log.Take(), "");
}

TEST(Threads, ObjectsOverOneFileSeeAtWorstAnEmptyOne) {
  FolderGauge shared;
  LogOutput::SetLevel(LogLevel{0});
  EXPECT_EQ(RunThreads(shared, false), 0);
}
