// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <locale>
#include <memory>
#include <sstream>
#include <string_view>
#include <utility>

#include "commands/Commands.hpp"
#include "gauge/Concat.hpp"
#include "gauge/Number.hpp"
#include "output/LineSink.hpp"
#include "output/Screen.hpp"
#include "output/Timestamp.hpp"
#include "watching/Events.hpp"
#include "watching/Wait.hpp"

using std::chrono::steady_clock;

namespace fuelgauge {
namespace {

struct WatchOptions {
  double intervalSeconds = 1;
  std::uint64_t count = 0;  // samples to take; 0: until stopped
  bool csv = false;
  bool json = false;
  bool events = false;
};

// Not by CLI11: it takes "nan" for a number of seconds, and 010 for eight samples.
double Seconds(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  double seconds = 0;
  const bool whole =
      stream >> std::noskipws >> seconds && stream.peek() == std::istream::traits_type::eof();
  if (!whole || !(seconds >= 0.1 && seconds <= 86400)) {  // so that "nan" is refused
    throw CLI::ValidationError("--interval",
                               Concat("'", text, "' is not a number of seconds from 0.1 to 86400"));
  }
  return seconds;
}

std::uint64_t Count(const std::string& text) {
  const auto number = WholeNumber<std::uint64_t>(text);
  if (!number || *number == 0) {
    throw CLI::ValidationError(
        "--count", Concat("'", text, "' is not a whole number from 1 to 18446744073709551615"));
  }
  return *number;
}

// What shows control sequences as they are, such as an editor's shell, gets lines.
bool DrawsInPlace() {
  const char* const terminal = ::secure_getenv("TERM");
  return ::isatty(STDOUT_FILENO) != 0 && terminal != nullptr && *terminal != '\0' &&
         std::string_view(terminal) != "dumb";
}

std::unique_ptr<Sink> SinkFor(const WatchOptions& options) {
  if (options.csv) {
    return std::make_unique<LineSink>(CsvLine, false, CsvHeader());
  }
  if (options.json) {
    return std::make_unique<LineSink>(JsonLine, false);
  }
  if (DrawsInPlace()) {
    return std::make_unique<Screen>();
  }
  return std::make_unique<LineSink>(TextLine, true);
}

// @return whether the watch goes on
bool WaitUntil(steady_clock::time_point next, const Events& events, Sink& sink) {
  using Cause = Wait::Cause;
  while (true) {
    const Cause cause = Wait::Until(next, events.Number());
    if (cause == Cause::Time || (cause == Cause::Events && events.Take())) {
      return true;
    }
    if (cause == Cause::Signal && ::isatty(STDOUT_FILENO) != 0) {
      std::cout << "\n" << std::flush;  // behind "^C"
    }
    if (cause == Cause::Signal || cause == Cause::Reader) {
      return false;
    }
    if (cause != Cause::Events) {
      sink.Redraw(cause == Cause::Shell);
    }
  }
}

ExitStatus Watch(const Gauge& gauge, const WatchOptions& options) {
  const Wait wait;
  const std::unique_ptr<Sink> sink = SinkFor(options);
  const Events events(options.events ? gauge.TheSupply().Name() : "");
  if (!events.Lack().empty()) {
    sink->Notice(Concat("no events, only the interval: ", events.Lack()));
  }
  const Summary::Seconds seconds(options.intervalSeconds);
  const auto interval = std::chrono::duration_cast<steady_clock::duration>(seconds);
  Summary summary(seconds);
  bool there = true;
  std::string lastSeen;
  auto next = steady_clock::now();
  for (std::uint64_t taken = 1;; ++taken) {
    const bool due = steady_clock::now() >= next;  // else an event comes between
    const std::string time = Timestamp(Now());
    const Summary::Seconds moment = SinceStart();
    const Readings readings = gauge.ReadAll();
    summary.Add(moment, readings);
    const bool wasThere = std::exchange(there, readings.AnySucceeded());
    if (there != wasThere) {
      const std::string last = lastSeen.empty() ? "" : "; last read at " + lastSeen;
      sink->Notice(there ? "gauge found at " + time : gauge.Missing(readings) + last);
    }
    lastSeen = there ? time : lastSeen;
    const ExitStatus status = lastSeen.empty() ? ExitStatus::FileError : ExitStatus::Success;
    Wait::EndWith(status);
    sink->Sample(time, readings);
    if (due) {
      next = std::max(next + interval, steady_clock::now());  // a slow gauge is not hurried after
    }
    if (!OutputIsOut() || taken == options.count || !WaitUntil(next, events, *sink)) {
      if (OutputIsOut() && !ReaderIsGone()) {
        sink->End(summary);
      }
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
  parser.add_flag("--events", options->events,
                  "A sample also when the kernel announces a change of the supply");
  CLI::Option* const csv = parser.add_flag(
      "--csv", options->csv, "A header, then one line of raw numbers per sample; not with --json");
  parser.add_flag("--json", options->json, "One line of JSON per sample")->excludes(csv);
  return [options](const Request& request) { return Watch(Gauge(request.One()), *options); };
}

}  // namespace fuelgauge
