// SPDX-License-Identifier: MIT
#include "readings/LifetimeFile.hpp"

#include <sys/stat.h>

#include <cerrno>
#include <fstream>
#include <set>
#include <string>

#include "readings/Cause.hpp"
#include "readings/LifetimeField.hpp"
#include "readings/UsageError.hpp"

namespace fuelgauge {

void CheckLifetimeFile(const std::string& path) {
  const auto refuse = [&path](const std::string& reason) {
    throw UsageError("lifetime file '" + path + "': " + reason);
  };
  // Not by std::filesystem: on a 32-bit machine it cannot see a file dated after the year 2037.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    refuse(ErrorText(errno));
  }
  if (!S_ISREG(status.st_mode)) {
    refuse("it is not a regular file");
  }
  if (status.st_size > MostBytes) {
    refuse("it has " + std::to_string(status.st_size) + " bytes, more than " +
           std::to_string(MostBytes));
  }
  std::ifstream file(path);
  if (!file) {
    refuse("it cannot be opened");
  }
  std::set<std::string> fields;
  dral::LifetimeData record;
  try {
    for (std::string name, value; file >> name;) {
      const LifetimeField& field = FindField(name);
      if (!fields.insert(name).second) {
        throw UsageError(name + ": the field is named twice");
      }
      if (!(file >> value)) {
        throw UsageError(name + ": there is no value");
      }
      field.Store(record, field.Parse(value));
    }
    RefuseCrossed(record, fields);
  } catch (const UsageError& error) {
    refuse(error.what());
  }
  if (file.bad()) {
    refuse("it cannot be read to its end");
  }
  if (fields.empty()) {
    refuse("it names none of the record's fields");
  }
}

}  // namespace fuelgauge
