// SPDX-License-Identifier: MIT
// Any bytes as an override file: a valid record comes out, or the exception of a conversion. What the tool lets pass,
// the library takes as it is written.
#include <LifetimeDataParser.hpp>

#include <stdexcept>

#include "Target.hpp"
#include "gauge/LifetimeInput.hpp"
#include "gauge/ToolError.hpp"
#include "support/TemporaryFolder.hpp"

void Target(const std::string& input) {
  static const TemporaryFolder folder;
  const std::string path = folder.Write("file", input);
  try {
    const dral::LifetimeData data = dral::LifetimeDataParser(path, {}).GetLifetimeData();
    dral::LifetimeData again = data;
    again.Validate();
    Require(data.ToString() == again.ToString());
  } catch (const std::logic_error& error) {
    const std::string conversion = error.what();
    Require(conversion == "stoi" || conversion == "stoul");
  }
  try {
    const dral::LifetimeData strict = fuelgauge::ReadLifetimeFile(path);
    Require(strict.ToString() == dral::LifetimeDataParser(path, {}).GetLifetimeData().ToString());
  } catch (const fuelgauge::UsageError&) {
  }
}
