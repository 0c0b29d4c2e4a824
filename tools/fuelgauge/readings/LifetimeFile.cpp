// SPDX-License-Identifier: MIT
#include "readings/LifetimeFile.hpp"

#include <sys/stat.h>

#include <LifetimeDataParser.hpp>
#include <fstream>
#include <set>
#include <stdexcept>

#include "readings/UsageError.hpp"

namespace fuelgauge {

void CheckLifetimeFile(const std::string& path) {
  const auto refuse = [&path](const std::string& reason) {
    throw UsageError("lifetime file '" + path + "': " + reason);
  };
  // Not by std::filesystem: on a 32-bit machine it cannot see a file dated after the year 2037.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    refuse("no such regular file");
  }
  std::ifstream file(path);
  if (!file) {
    refuse("it cannot be opened");
  }
  std::set<std::string> fields;
  for (dral::LifetimeDataParser::kv_pair pair; file >> pair;) {
    const auto field = dral::LifetimeDataParser::mapping.find(pair.key);
    if (field == dral::LifetimeDataParser::mapping.end()) {
      refuse("no field named '" + pair.key + "'");
    }
    if (!fields.insert(pair.key).second) {
      continue;  // the first one counts
    }
    try {
      dral::LifetimeData scratch;
      field->second(pair.value, scratch);
    } catch (const std::logic_error&) {
      refuse(pair.key + " is '" + pair.value + "', which is not a number that fits");
    }
  }
  if (file.bad()) {
    refuse("it cannot be read to its end");
  }
  if (fields.empty()) {
    refuse("it names none of the record's fields");
  }
}

}  // namespace fuelgauge
