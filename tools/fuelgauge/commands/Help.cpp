// SPDX-License-Identifier: MIT
#include "commands/Help.hpp"

#include "gauge/Concat.hpp"
#include "output/Table.hpp"

namespace fuelgauge {

std::string Help(const CLI::App* app, const std::string& /*name*/, CLI::AppFormatMode /*mode*/) {
  const auto row = [](const std::string& name, const std::string& description) {
    return Concat("  ", PadTo(27, name), " ", description, "\n");
  };
  std::string usage = app->get_parent() != nullptr ? app->get_name() + " [OPTIONS]" : "[OPTIONS]";
  std::string options;
  for (const CLI::Option* option : app->get_options()) {
    const bool several = option->get_expected_max() > 1;
    std::string name = option->get_name(false, true);
    if (option->get_positional()) {
      name += several ? "..." : "";
      usage += " " + name;
    } else {
      const std::string value = option->get_type_name();
      name += Concat(value.empty() ? "" : " ", value, several ? " ..." : "");
    }
    options += row(name, option->get_description());
  }
  std::string commands;
  for (const CLI::App* command : app->get_subcommands([](const CLI::App*) { return true; })) {
    commands += row(command->get_name(), command->get_description());
  }
  return Concat(app->get_description(), "\n\nUsage: fuelgauge ", usage,
                commands.empty() ? "" : " COMMAND", "\n\n", options,
                commands.empty() ? "" : "\nCommands:\n", commands);
}

}  // namespace fuelgauge
