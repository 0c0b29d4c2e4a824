// SPDX-License-Identifier: MIT
// Any bytes as an override file: a valid record comes out, or one of the two exceptions.
#include <unistd.h>
#include <LifetimeDataParser.hpp>
#include <LogOutput.hpp>

#include <fstream>
#include <stdexcept>

#include "Target.hpp"

void Target(const std::string& input) {
  static const std::string path = "/dev/shm/fuelgauge-fuzz-" + std::to_string(::getpid());
  dral::LogOutput::SetLevel(dral::LogLevel{0});
  std::ofstream(path, std::ios::binary) << input;
  try {
    const dral::LifetimeData data = dral::LifetimeDataParser(path, {}).GetLifetimeData();
    dral::LifetimeData again = data;
    again.Validate();
    Require(data.ToString() == again.ToString());
  } catch (const std::invalid_argument& error) {
    Require(std::string(error.what()) == "stoi" || std::string(error.what()) == "stoul");
  } catch (const std::out_of_range& error) {
    Require(std::string(error.what()) == "stoi" || std::string(error.what()) == "stoul");
  }
}
