// SPDX-License-Identifier: MIT
// Many threads, for KESP_SOAK_OPERATIONS operations in all; without it for 20000.
#include <gtest/gtest.h>
#include <malloc.h>

#include <atomic>
#include <cstdint>
#include <future>
#include <vector>

#include "support/FolderGauge.hpp"

using namespace dral;

constexpr int Threads = 4;
constexpr auto Property = FuelGaugeProperty::LifetimeData;

// Each thread writes records of its own number throughout, resets, and reads, all on one gauge; and it
// reads a text through a gauge of its own.
TEST(Threads, OperationsOnOneObjectNeverOverlap) {
  const char* const operations = std::getenv("KESP_SOAK_OPERATIONS");
  const int rounds = (operations != nullptr ? std::atoi(operations) : 20000) / Threads / 4;
  FolderGauge shared;
  shared.folder.Write("lifetime_data", Bytes({}));
  shared.folder.Write("status", "Full\n");
  const auto files = OpenFiles();
  const auto heap = ::mallinfo2().uordblks;
  std::atomic<int> wrong = 0;
  std::vector<std::future<void>> threads;
  for (std::int16_t number = 1; number <= Threads; ++number) {
    threads.push_back(std::async(std::launch::async, [&, number] {
      Bq27542FuelGauge own("", Bq27542FuelGauge::PropertyMapAt(shared.folder.path));
      LifetimeData record{.maxTemp = number};
      record.reserved.fill(static_cast<std::uint8_t>(number));
      for (int round = 0; round < rounds; ++round) {
        wrong += shared.gauge.Set(Property, record) == FuelGaugeStatus::Success ? 0 : 1;
        wrong += shared.gauge.Reset(Property) == FuelGaugeStatus::Success ? 0 : 1;
        const auto [status, read] = shared.gauge.Get<LifetimeData>(Property);
        const bool torn = read.reserved[19] != (read.maxTemp == 600 ? 0 : read.maxTemp);
        wrong += status == FuelGaugeStatus::Success && !torn ? 0 : 1;
        wrong += Describe(own.Get(FuelGaugeProperty::Status, "")) == "0 string Full" ? 0 : 1;
      }
    }));
  }
  for (auto& thread : threads) {
    thread.get();
  }
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(OpenFiles(), files);
  EXPECT_LT(::mallinfo2().uordblks, heap + 65536);
  EXPECT_EQ(shared.log.Take(), "");
}
