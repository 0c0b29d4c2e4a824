// SPDX-License-Identifier: MIT
// Many threads, for KESP_SOAK_OPERATIONS operations in all; without it for 20000.
#include <gtest/gtest.h>
#include <malloc.h>
#include <Bq27542FuelGauge.hpp>

#include <cstdlib>
#include <future>
#include <map>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

using dral::Bq27542FuelGauge;
using dral::FuelGaugeProperty;
using dral::FuelGaugeStatus;
using dral::LifetimeData;

namespace {

constexpr int Threads = 4;
constexpr auto Property = FuelGaugeProperty::LifetimeData;

int Rounds() {
  const char* const operations = std::getenv("KESP_SOAK_OPERATIONS");
  return (operations != nullptr ? std::atoi(operations) : 20000) / Threads / 4;
}

struct Tally {
  std::map<FuelGaugeStatus, int> writes;
  std::map<FuelGaugeStatus, int> reads;
  int torn = 0;  // reads of a record that nobody wrote
};

// Each thread writes records of its own number throughout, resets, and reads.
Tally Work(Bq27542FuelGauge& gauge, std::int16_t number) {
  Tally tally;
  for (int round = 0; round < Rounds(); ++round) {
    LifetimeData record{number, number, 1, 1, number, number};
    record.reserved.fill(static_cast<std::uint8_t>(number));
    ++tally.writes[gauge.Set(Property, record)];
    ++tally.writes[gauge.Reset(Property)];
    ++tally.reads[gauge.Get<std::string>(Property).first];
    const auto [status, read] = gauge.Get<LifetimeData>(Property);
    ++tally.reads[status];
    tally.torn += read.maxTemp != read.maxDischargeCurrent ||
                          read.reserved[19] != static_cast<std::uint8_t>(read.maxTemp)
                      ? 1
                      : 0;
  }
  return tally;
}

struct Resources {
  std::ptrdiff_t files;
  std::size_t bytes;
};

Resources Used() {
  const std::filesystem::directory_iterator files("/proc/self/fd");
  // Not the resident pages: an emulator adds some of its own with every thread.
  const auto heap = ::mallinfo2();
  return {std::distance(begin(files), end(files)), heap.uordblks + heap.hblkhd};
}

// Runs the threads, each on the gauge that it is given by its number.
Tally RunThreads(const TemporaryFolder& folder, int gauges) {
  folder.Write("lifetime_data", Bytes({0, 0, 1, 1, 0, 0}));
  std::vector<std::unique_ptr<Bq27542FuelGauge>> objects;
  while (gauges-- > 0) {
    auto map = Bq27542FuelGauge::PropertyMapAt(folder.At(""));
    map->at(Property).resetValue = LifetimeData{0, 0, 1, 1, 0, 0};
    objects.push_back(std::make_unique<Bq27542FuelGauge>("", std::move(map)));
  }
  std::vector<std::future<Tally>> threads;
  for (std::int16_t number = 1; number <= Threads; ++number) {
    auto& gauge = *objects[static_cast<std::size_t>(number) % objects.size()];
    threads.push_back(std::async(std::launch::async, Work, std::ref(gauge), number));
  }
  Tally all;
  for (auto& thread : threads) {
    const Tally tally = thread.get();
    for (const auto& [status, count] : tally.writes) {
      all.writes[status] += count;
    }
    for (const auto& [status, count] : tally.reads) {
      all.reads[status] += count;
    }
    all.torn += tally.torn;
  }
  return all;
}

TEST(Threads, OperationsOnOneObjectNeverOverlap) {
  const TemporaryFolder folder;
  LogCapture log(3);
  RunThreads(folder, 1);  // what is kept for good is had now
  const Resources before = Used();
  const Tally tally = RunThreads(folder, 1);
  const Resources after = Used();
  const std::map<FuelGaugeStatus, int> all{{FuelGaugeStatus::Success, 2 * Threads * Rounds()}};
  EXPECT_EQ(tally.writes, all);
  EXPECT_EQ(tally.reads, all);
  EXPECT_EQ(tally.torn, 0);
  EXPECT_EQ(log.Take(), "");
  EXPECT_EQ(after.files, before.files);
  if (!KESP_SANITIZED) {  // a sanitizer keeps freed memory for a while
    EXPECT_LE(after.bytes, before.bytes + 65536) << "memory must not grow with the operations";
  }
}

TEST(Threads, ObjectsOverOneFileSeeAtWorstAnEmptyOne) {
  const TemporaryFolder folder;
  const LogCapture log(0);
  const Resources before = Used();
  Tally tally = RunThreads(folder, Threads);
  EXPECT_EQ(tally.writes[FuelGaugeStatus::Success], 2 * Threads * Rounds());
  EXPECT_EQ(tally.reads[FuelGaugeStatus::Success] + tally.reads[FuelGaugeStatus::NoData],
            2 * Threads * Rounds());
  EXPECT_EQ(Used().files, before.files);
}

}  // namespace
