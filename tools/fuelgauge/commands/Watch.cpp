// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <locale>
#include <memory>
#include <optional>
#include <sstream>
#include <string_view>
#include <system_error>

#include "commands/Commands.hpp"
#include "commands/Presence.hpp"
#include "commands/WatchSignals.hpp"
#include "output/Csv.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Screen.hpp"
#include "output/Text.hpp"
#include "output/Timestamp.hpp"
#include "readings/Summary.hpp"

using dral::FuelGaugeProperty;
using std::chrono::steady_clock;

namespace fuelgauge {
namespace {

struct WatchOptions {
  double intervalSeconds = 1;
  std::uint64_t count = 0;  // samples to take; 0: until stopped
  bool csv = false;
  bool json = false;
};

// CLI11's own range check takes "nan" and words it less clearly.
std::string Seconds(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double seconds = 0;
  return stream >> std::noskipws >> seconds && stream.peek() == std::istream::traits_type::eof() &&
                 seconds >= 0.1 && seconds <= 86400
             ? ""
             : "'" + text + "' is not a number of seconds from 0.1 to 86400";
}

std::string WholeNumber(const std::string& text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number > 0
             ? ""
             : "'" + text + "' is not a whole number from 1 to 18446744073709551615";
}

void PrintLine(const std::string& time, const Readings& readings) {
  std::cout << time;
  for (const auto id :
       {FuelGaugeProperty::Status, FuelGaugeProperty::StateOfCharge, FuelGaugeProperty::VoltageNow,
        FuelGaugeProperty::CurrentNow, FuelGaugeProperty::Temperature}) {
    std::cout << "  " << TerminalSafe(readings[id].ForPeople());
  }
  std::cout << "\n";
}

// The record changes over months: it is no matter for a watch.
void PrintJsonLine(const std::string& time, const Readings& readings) {
  Json line = {{"time", time}};
  for (const Reading& reading : readings) {
    if (reading.property->type != Type::Lifetime) {
      line[std::string(reading.property->name)] = ToJson(reading);
    }
  }
  PrintCompact(line);
}

// What shows control sequences as they are, such as an editor's shell, gets lines.
bool DrawsInPlace() {
  const char* const terminal = ::secure_getenv("TERM");
  return ::isatty(STDOUT_FILENO) != 0 && terminal != nullptr && *terminal != '\0' &&
         std::string_view(terminal) != "dumb";
}

void PrintSample(const WatchOptions& options, const std::string& time, const Readings& readings) {
  if (options.csv) {
    PrintCsvLine(time, readings);
  } else if (options.json) {
    PrintJsonLine(time, readings);
  } else {
    PrintLine(time, readings);
  }
}

// Lines for programs end without: who reads them has the samples.
void Tell(const Summary& summary, const WatchOptions& options) {
  if (!options.csv && !options.json) {
    for (const std::string& line : summary.Lines()) {
      Complain(line);
    }
  }
}

// @return whether the watch goes on
bool WaitUntil(steady_clock::time_point next, const WatchSignals& signals,
               std::optional<Screen>& screen) {
  while (const int signal = signals.CameBefore(next)) {
    if (signal == SIGINT || signal == SIGTERM) {
      std::cout << (::isatty(STDOUT_FILENO) != 0 ? "\n" : "") << std::flush;  // behind "^C"
      return false;
    }
    if (screen && signal == SIGCONT) {
      screen->Leave();
    }
    if (screen) {
      screen->Redraw();
    }
  }
  return true;
}

ExitStatus Watch(const Gauge& gauge, const WatchOptions& options) {
  const WatchSignals signals;
  std::optional<Screen> screen;
  if (options.csv) {
    PrintCsvHeader();
  } else if (!options.json && DrawsInPlace()) {
    screen.emplace();
  }
  const Summary::Seconds seconds(options.intervalSeconds);
  const auto interval = std::chrono::duration_cast<steady_clock::duration>(seconds);
  Summary summary(seconds);
  Presence presence;
  auto next = steady_clock::now();
  for (std::uint64_t taken = 1;; ++taken) {
    const std::string time = Timestamp(Now());
    const Summary::Seconds moment = SinceStart();
    const Readings readings = gauge.ReadAll();
    summary.Add(moment, readings);
    if (presence.Tell(gauge, readings, time) && screen) {
      screen->Leave();
    }
    const ExitStatus status = presence.Ever() ? ExitStatus::Success : ExitStatus::FileError;
    WatchSignals::EndWith(status);
    if (screen) {
      screen->Draw(time, readings);
    } else if (readings.AnySucceeded()) {
      PrintSample(options, time, readings);
    }
    next = std::max(next + interval, steady_clock::now());  // a slow gauge is not hurried after
    if (!std::cout.flush() || ReaderIsGone()) {
      return status;  // main sees to it
    }
    if (taken == options.count || !WaitUntil(next, signals, screen)) {
      Tell(summary, options);
      return status;
    }
  }
}

}  // namespace

Action AddWatch(CLI::App& parser) {
  const auto options = std::make_shared<WatchOptions>();
  parser
      .add_option("--interval", options->intervalSeconds,
                  "Seconds between samples, 0.1 to 86400; default 1")
      ->type_name("S")
      ->check(Seconds);
  parser.add_option("--count", options->count, "Samples to take; default: until Ctrl-C")
      ->type_name("N")
      ->check(WholeNumber);
  CLI::Option* const csv =
      parser.add_flag("--csv", options->csv, "A header, then one line of raw numbers per sample");
  parser.add_flag("--json", options->json, "One line of JSON per sample")->excludes(csv);
  return [options](const GaugeOptions& which) { return Watch(Gauge(which), *options); };
}

}  // namespace fuelgauge
