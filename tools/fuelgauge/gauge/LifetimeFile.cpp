// SPDX-License-Identifier: MIT
#include "gauge/LifetimeFile.hpp"

#include <locale>
#include <set>
#include <sstream>

#include "gauge/LifetimeField.hpp"
#include "gauge/RegularFile.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

dral::LifetimeData Parse(const std::string& contents) {
  std::istringstream words(contents);
  words.imbue(std::locale::classic());  // the global locale may know other white space
  dral::LifetimeData record;
  std::set<std::string> fields;
  for (std::string name, value; words >> name;) {
    const LifetimeField& field = FindField(name);
    if (!fields.insert(name).second) {
      throw UsageError(name + ": the field is named twice");
    }
    if (!(words >> value)) {
      throw UsageError(name + ": there is no value");
    }
    field.Store(record, field.Parse(value));
  }
  if (fields.empty()) {
    throw UsageError("it names none of the record's fields");
  }
  RefuseCrossed(record, fields);
  return record;
}

}  // namespace

dral::LifetimeData ReadLifetimeFile(const std::string& path) {
  try {
    return Parse(ContentsOf(path));
  } catch (const UsageError& error) {
    throw UsageError("lifetime file '" + path + "': " + error.text);
  }
}

}  // namespace fuelgauge
