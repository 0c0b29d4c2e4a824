// SPDX-License-Identifier: MIT
// Any bytes as an override file: a valid record comes out, or one of the two exceptions.
#include <LifetimeDataParser.hpp>

#include <stdexcept>

#include "Target.hpp"
#include "TemporaryFolder.hpp"

void Target(const std::string& input) {
  static const TemporaryFolder folder;
  const std::string path = folder.Write("file", input);
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
