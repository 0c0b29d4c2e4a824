// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <iostream>
#include <memory>

#include "Commands.hpp"
#include "Presentation.hpp"
#include "Reading.hpp"
#include "Screen.hpp"
#include "Timestamp.hpp"

using dral::FuelGaugeProperty;
using std::chrono::steady_clock;

namespace {

// The record changes over months: it is no matter for a watch.
bool Watched(const Reading& reading) {
  return reading.property->id != FuelGaugeProperty::LifetimeData;
}

void PrintLine(const std::string& time, const std::vector<Reading>& readings) {
  std::cout << time;
  if (!AnySucceeded(readings)) {
    std::cout << "  no gauge: nothing can be read";
  } else {
    for (const auto id : {FuelGaugeProperty::Status, FuelGaugeProperty::StateOfCharge,
                          FuelGaugeProperty::VoltageNow, FuelGaugeProperty::CurrentNow,
                          FuelGaugeProperty::Temperature}) {
      std::cout << "  " << ForPeople(Of(readings, id));
    }
  }
  std::cout << "\n";
}

void PrintCsvHeader() {
  std::cout << "time";
  for (const Property& property : Properties) {
    if (property.id != FuelGaugeProperty::LifetimeData &&
        property.id != FuelGaugeProperty::LifetimeDataResetValue) {
      std::cout << "," << property.name;
    }
  }
  std::cout << "\n";
}

// A value that was not read is an empty field.
void PrintCsvLine(const std::string& time, const std::vector<Reading>& readings) {
  std::cout << time;
  for (const Reading& reading : readings) {
    if (!Watched(reading)) {
      continue;
    }
    std::cout << ",";
    if (const auto number = Number(reading)) {
      std::cout << *number;
    } else if (const auto text = Text(reading)) {
      std::cout << CsvField(*text);
    }
  }
  std::cout << "\n";
}

void PrintJsonLine(const std::string& time, std::vector<Reading> readings) {
  std::erase_if(readings, std::not_fn(Watched));
  Json line = {{"time", time}};
  line.update(ToJson(readings));
  PrintCompact(line);
}

// Ctrl-C and a plain kill are waited for, not handled: nothing runs in a signal's context.
class StopSignals {
 public:
  StopSignals() {
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGINT);
    ::sigaddset(&signals, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
  }

  /// Waits until @p time.
  /// @return whether a signal came instead
  bool CameBefore(steady_clock::time_point time) const {
    using std::chrono::nanoseconds;
    const auto left = std::max(nanoseconds(0), nanoseconds(time - steady_clock::now()));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    timespec timeout{};
    timeout.tv_sec = static_cast<std::time_t>(seconds.count());
    timeout.tv_nsec = static_cast<long>((left - seconds).count());
    return ::sigtimedwait(&signals, nullptr, &timeout) > 0;
  }

 private:
  sigset_t signals{};
};

}  // namespace

ExitStatus Watch(dral::FuelGaugeIF& gauge, const WatchOptions& options) {
  const StopSignals stop;
  std::unique_ptr<Screen> screen;
  if (options.format == WatchOptions::Format::Csv) {
    PrintCsvHeader();
  } else if (options.format == WatchOptions::Format::Plain && ::isatty(STDOUT_FILENO) != 0) {
    screen = std::make_unique<Screen>();
  }
  const auto interval = std::chrono::duration_cast<steady_clock::duration>(
      std::chrono::duration<double>(options.intervalSeconds));
  auto next = steady_clock::now();
  for (std::uint64_t taken = 1;; ++taken) {
    const std::string time = Timestamp(Now());
    const std::vector<Reading> readings = ReadAll(gauge);
    if (screen) {
      screen->Draw(time, readings);
    } else if (options.format == WatchOptions::Format::Csv) {
      PrintCsvLine(time, readings);
    } else if (options.format == WatchOptions::Format::Json) {
      PrintJsonLine(time, readings);
    } else {
      PrintLine(time, readings);
    }
    next = std::max(next + interval, steady_clock::now());  // a slow gauge is not hurried after
    if (!std::cout.flush() || taken == options.count || stop.CameBefore(next)) {
      return ExitStatus::Success;  // main sees to an output that failed
    }
  }
}
