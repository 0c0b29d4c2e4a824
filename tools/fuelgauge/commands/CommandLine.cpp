// SPDX-License-Identifier: MIT
#include "commands/CommandLine.hpp"

#include <array>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>
#include <string_view>
#include <utility>

#include "commands/Commands.hpp"
#include "commands/Help.hpp"
#include "commands/NotEmpty.hpp"
#include "gauge/Concat.hpp"
#include "output/Message.hpp"

namespace fuelgauge {
namespace {

struct Command {
  const char* name;
  const char* description;
  Action (*add)(CLI::App& parser);
};

constexpr auto Commands = std::to_array<Command>({
    {"list", "Show every property", AddList},
    {"get", "Print one property's bare value", AddGet},
    {"set", "Write the lifetime record, and read it back", AddSet},
    {"reset", "Write the lifetime record's reset value, and read it back", AddReset},
    {"watch", "Show samples until Ctrl-C", AddWatch},
    {"metrics", "Print metrics for Prometheus", AddMetrics},
    {"check", "Check whether the gauge's values make sense", AddCheck},
    {"devices", "List the kernel's batteries", AddDevices},
});

// The words of the command line, the last one first, as CLI11 wants them. Behind "--device=" it would
// take the next word for the value, "[a=1,b=2]" for two words, and of "-v=false" it would tell a part.
std::vector<std::string> Words(int argc, char** argv) {
  std::vector<std::string> words;
  for (int i = argc - 1; i > 0; --i) {
    std::string word = argv[i];
    const bool list = word.starts_with('[') && word.ends_with(']') &&
                      !std::string_view(argv[i - 1]).starts_with("--");
    const bool flag = word.size() > 2 && word[0] == '-' && word[1] != '-' && word[2] == '=';
    if (list || flag) {
      throw UsageError(Concat("not expected: '", word, "'; 'fuelgauge --help' shows the usage"));
    }
    if (word.starts_with("--") && word.ends_with("=")) {
      words.emplace_back();
      word.pop_back();
    }
    words.push_back(std::move(word));
  }
  return words;
}

// @return what is wrong, and the help that has the option or the word in question
std::string Explain(const CLI::ParseError& error, const CLI::App& app) {
  std::string text = error.what();
  const auto code = static_cast<CLI::ExitCodes>(error.get_exit_code());
  const std::vector<std::string> remaining = app.remaining(true);  // in the order given
  if (!remaining.empty() &&
      (code == CLI::ExitCodes::ExtrasError || code == CLI::ExitCodes::RequiredError)) {
    text = "not expected:";
    for (const std::string& word : remaining) {
      text += Concat(" '", word, "'");
    }
  }
  const auto commands = app.get_subcommands();
  const bool shared = app.get_option_no_throw(text.substr(0, text.find(':'))) != nullptr;
  const std::string command = shared || commands.empty() ? "" : commands[0]->get_name() + " ";
  return text + "; 'fuelgauge " + command + "--help' shows the usage";
}

ExitStatus Run(int argc, char** argv) {
  Request request;
  bool verbose = false;
  CLI::App app("Reads, writes and resets the properties of a BQ27542 battery fuel gauge.",
               "fuelgauge");
  app.formatter_fn(Help);
  app.set_help_flag("-h,--help", "Show this help");
  app.require_subcommand(0, 1);  // none is refused below: CLI11 would not name a wrong word
  app.fallthrough();             // the options below may stand behind the command as well
  app.set_version_flag("--version", "fuelgauge " KESP_VERSION, "Show the version");
  app.add_option("--device", request.devices,
                 Concat("A supply's name in ", SupplyClass, ", or its folder; default ",
                        GaugeOptions().device))
      ->type_name("NAME|DIR")
      ->allow_extra_args(false)
      ->check(NotEmpty);
  app.add_option("--lifetime-file", request.lifetimeFile,
                 "Override fields of the lifetime record's reset value")
      ->type_name("FILE")
      ->check(NotEmpty);
  app.add_flag("-v,--verbose", verbose, "Show the library's log on standard error");

  Action action;
  for (const Command& command : Commands) {
    CLI::App* const parser = app.add_subcommand(command.name, command.description);
    parser->callback([&action, run = command.add(*parser)] { action = run; });
  }

  try {
    app.parse(Words(argc, argv));
  } catch (const CLI::Success& help) {  // or the version
    app.exit(help);
    return ExitStatus::Success;
  } catch (const CLI::ParseError& error) {
    throw UsageError(Explain(error, app));
  }
  if (!action) {
    throw UsageError("no command given; 'fuelgauge --help' shows them all");
  }

  // The tool says itself what failed. The library's log, where the logger takes its level from the
  // environment, is for those who ask for it.
  ::setenv("KESP_LOG_LEVEL", verbose ? "8" : "0", verbose ? 1 : 0);
  return action(request);
}

}  // namespace

GaugeOptions Request::One() const {
  if (devices.size() > 1) {
    throw UsageError("--device: 'metrics' alone takes more than one");
  }
  return {devices.empty() ? GaugeOptions().device : devices.front(), lifetimeFile};
}

ExitStatus RunCommandLine(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const ToolError& error) {
    Complain(error.text);
    return error.status;
  } catch (const std::bad_alloc&) {
    std::cerr << "fuelgauge: out of memory\n";  // needs none
    return ExitStatus::Software;
  } catch (const std::exception& error) {
    Complain(error.what());
    return ExitStatus::Software;
  }
}

}  // namespace fuelgauge
