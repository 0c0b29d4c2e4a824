// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <algorithm>
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

#include "commands/Commands.hpp"
#include "commands/Presence.hpp"
#include "commands/WatchSignals.hpp"
#include "output/Csv.hpp"
#include "output/Json.hpp"
#include "output/Message.hpp"
#include "output/Screen.hpp"
#include "output/Text.hpp"
#include "output/Timestamp.hpp"
#include "readings/Number.hpp"
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

// Not by CLI11: it takes "nan" for a number of seconds, and 010 for eight samples.
double Seconds(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double seconds = 0;
  if (!(stream >> std::noskipws >> seconds) || stream.peek() != std::istream::traits_type::eof() ||
      seconds < 0.1 || seconds > 86400) {
    throw CLI::ValidationError("--interval",
                               "'" + text + "' is not a number of seconds from 0.1 to 86400");
  }
  return seconds;
}

std::uint64_t Count(const std::string& text) {
  const auto number = WholeNumber<std::uint64_t>(text);
  if (!number || *number == 0) {
    throw CLI::ValidationError(
        "--count", "'" + text + "' is not a whole number from 1 to 18446744073709551615");
  }
  return *number;
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
    std::cout.flush();  // the first read may take its time
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
    if (!OutputIsOut() || ReaderIsGone()) {
      return status;
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
      .add_option_function<std::string>(
          "--interval", [options](const auto& text) { options->intervalSeconds = Seconds(text); },
          "Seconds between samples, 0.1 to 86400; default 1")
      ->type_name("S");
  parser
      .add_option_function<std::string>(
          "--count", [options](const auto& text) { options->count = Count(text); },
          "Samples to take; default: until Ctrl-C")
      ->type_name("N");
  CLI::Option* const csv =
      parser.add_flag("--csv", options->csv, "A header, then one line of raw numbers per sample");
  parser.add_flag("--json", options->json, "One line of JSON per sample")->excludes(csv);
  return [options](const GaugeOptions& which) { return Watch(Gauge(which), *options); };
}

}  // namespace fuelgauge
