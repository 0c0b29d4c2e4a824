// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Commands.hpp"
#include "ExitStatus.hpp"
#include "Gauge.hpp"
#include "Presentation.hpp"
#include "UsageError.hpp"

namespace {

const std::map<std::string, dral::PropertyValue> Types = {
    {"string", std::string()},          {"int", 0}, {"uint", 0U}, {"bool", false},
    {"lifetime", dral::LifetimeData()},
};

struct Options {
  std::string device;
  std::string lifetimeFile;
  bool verbose = false;
  bool json = false;
  std::string property;
  std::string type;
  std::vector<std::string> values;
  bool csv = false;
  std::optional<std::string> output;
  WatchOptions watch;
};

// An empty name, as from a script's unset variable, must not mean the real gauge, or no file.
std::string NotEmpty(const std::string& name) {
  return name.empty() ? "the name is empty" : "";
}

// CLI11's own range check takes "nan" and words it less clearly.
std::string Seconds(const std::string& text) {
  double seconds = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
  return error == std::errc() && end == text.data() + text.size() && seconds >= 0.1 &&
                 seconds <= 86400
             ? ""
             : "'" + text + "' is not a number of seconds from 0.1 to 86400";
}

std::string WholeNumber(const std::string& text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number > 0
             ? ""
             : "'" + text + "' is not a whole number above 0";
}

// Whether nobody reads the output any more, as after `fuelgauge list | head -1`: no fault of ours.
bool ReaderIsGone() {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  return ::poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

ExitStatus Run(int argc, char** argv) {
  Options options;
  CLI::App app("Reads, writes and resets the properties of a BQ27542 battery fuel gauge.",
               "fuelgauge");
  app.require_subcommand(0, 1);  // none is refused below: CLI11 would not name a wrong word
  app.fallthrough();             // the options below may stand behind the command as well
  app.set_version_flag("--version", "fuelgauge " KESP_VERSION);
  app.add_option("--device", options.device,
                 "Folder of the gauge, instead of /sys/class/power_supply/bq27542-0")
      ->type_name("DIR")
      ->check(NotEmpty);
  app.add_option("--lifetime-file", options.lifetimeFile,
                 "Fields that replace those of the lifetime record's reset value")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_flag("-v,--verbose", options.verbose, "Show the library's log on standard error");

  CLI::App* const list = app.add_subcommand("list", "Show every property");
  list->add_flag("--json", options.json, "Answer in JSON");

  CLI::App* const get = app.add_subcommand("get", "Print one property's bare value");
  get->add_option("PROPERTY", options.property, "One of the names that 'list' shows")->required();
  get->add_option("--as", options.type, "Read it as string, int, uint, bool or lifetime")
      ->type_name("TYPE")
      ->check(CLI::IsMember(Types).description(""));
  get->add_flag("--json", options.json, "Answer in JSON");

  CLI::App* const set = app.add_subcommand("set", "Write the lifetime record, and read it back");
  set->add_option("PROPERTY", options.property, "LifetimeData")->required();
  set->add_option("VALUE", options.values, "FIELD=VALUE; other fields keep what the gauge holds")
      ->required();

  CLI::App* const reset =
      app.add_subcommand("reset", "Write the lifetime record's reset value, and read it back");
  reset->add_option("PROPERTY", options.property, "LifetimeData")->required();

  CLI::App* const watch = app.add_subcommand("watch", "Show a sample again and again");
  watch
      ->add_option("--interval", options.watch.intervalSeconds,
                   "Seconds between samples, 0.1 to 86400; without it 1")
      ->type_name("S")
      ->check(Seconds);
  watch->add_option("--count", options.watch.count, "Samples to take; without it until Ctrl-C")
      ->type_name("N")
      ->check(WholeNumber);
  CLI::Option* const csv =
      watch->add_flag("--csv", options.csv, "A header, then a line of raw numbers a sample");
  watch->add_flag("--json", options.json, "A line of JSON a sample")->excludes(csv);

  CLI::App* const metrics = app.add_subcommand("metrics", "Print what Prometheus reads");
  metrics->add_option("--output", options.output, "Put the text in place as this file, whole")
      ->type_name("FILE");

  CLI::App* const check = app.add_subcommand("check", "Tell whether the gauge makes sense");
  check->add_flag("--json", options.json, "Answer in JSON");

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      app.exit(error);  // --help or --version: prints it
      return ExitStatus::Success;
    }
    throw UsageError(std::string(error.what()) + "; 'fuelgauge --help' shows the usage");
  }

  if (app.get_subcommands().empty()) {
    throw UsageError("no command given; 'fuelgauge --help' shows them all");
  }

  // The tool says itself what failed. The library's log, where the logger takes its level from the
  // environment, is for those who ask for it.
  ::setenv("KESP_LOG_LEVEL", options.verbose ? "8" : "0", options.verbose ? 1 : 0);

  const auto gauge = OpenGauge(options.device, options.lifetimeFile);
  if (list->parsed()) {
    return List(*gauge, options.json);
  }
  if (get->parsed()) {
    std::optional<dral::PropertyValue> type;
    if (!options.type.empty()) {
      type = Types.at(options.type);
    }
    return Get(*gauge, options.property, type, options.json);
  }
  if (set->parsed()) {
    return Set(*gauge, options.property, options.values);
  }
  if (metrics->parsed()) {
    return Metrics(*gauge, options.output);
  }
  if (check->parsed()) {
    return Check(*gauge, options.json);
  }
  if (watch->parsed()) {
    using Format = WatchOptions::Format;
    options.watch.format = options.csv ? Format::Csv : options.json ? Format::Json : Format::Plain;
    return Watch(*gauge, options.watch);
  }
  return Reset(*gauge, options.property);
}

ExitStatus RunAndReport(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const UsageError& error) {
    Complain(error.what());
    return ExitStatus::Usage;
  } catch (const std::exception& error) {
    Complain(error.what());
    return ExitStatus::Software;
  }
}

}  // namespace

int main(int argc, char** argv) {
  static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
  ExitStatus status = RunAndReport(argc, argv);
  if (!std::cout.flush() && !ReaderIsGone()) {
    Complain("the output could not be written");
    status = ExitStatus::OutputError;
  }
  return static_cast<int>(status);
}
