// SPDX-License-Identifier: MIT
#include "gauge/LifetimeInput.hpp"

#include <locale>
#include <sstream>

#include "gauge/Concat.hpp"
#include "gauge/Files.hpp"
#include "gauge/Number.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

const LifetimeField& FindField(std::string_view name) {
  std::string names;
  for (const LifetimeField& field : LifetimeFields) {
    if (field.name == name) {
      return field;
    }
    names += Concat(names.empty() ? "" : ", ", field.name);
  }
  throw UsageError(Concat("no field named '", name, "'; the fields are ", names));
}

int ParseValue(const LifetimeField& field, std::string_view text) {
  const auto value = WholeNumber<int>(text);
  if (!value || !field.Allows(*value)) {
    throw UsageError(Concat(field.name, ": '", text, "' is not a whole number from ",
                            field.quantity.least, " to ", field.quantity.most));
  }
  return *value;
}

dral::LifetimeData ParseFile(const std::string& contents) {
  std::istringstream words(contents);
  words.imbue(std::locale::classic());  // the global locale may know other white space
  FieldValues values;
  for (std::string name, value; words >> name;) {
    const LifetimeField& field = FindField(name);
    if (values.contains(&field)) {
      throw UsageError(name + ": the field is named twice");
    }
    if (!(words >> value)) {
      throw UsageError(name + ": there is no value");
    }
    values[&field] = ParseValue(field, value);
  }
  if (values.empty()) {
    throw UsageError("it names none of the record's fields");
  }
  dral::LifetimeData record;
  Store(values, record);
  return record;
}

}  // namespace

FieldValues ParseAssignments(const std::vector<std::string>& words) {
  FieldValues values;
  for (const std::string& word : words) {
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) {
      throw UsageError(Concat("'", word, "': write it as FIELD=VALUE, such as maxTemp=550"));
    }
    const LifetimeField& field = FindField(word.substr(0, equals));
    if (!values.emplace(&field, ParseValue(field, word.substr(equals + 1))).second) {
      throw UsageError(Concat("'", word, "': the field is named twice"));
    }
  }
  return values;
}

void Store(const FieldValues& values, dral::LifetimeData& record) {
  for (const auto& [field, value] : values) {
    field->Store(record, value);
  }
  for (const auto& [minimum, maximum] : LifetimeRanges) {
    if (minimum->Value(record) > maximum->Value(record) &&
        (values.contains(minimum) || values.contains(maximum))) {
      throw UsageError(Concat(minimum->name, " ", minimum->Value(record), " would be above ",
                              maximum->name, " ", maximum->Value(record)));
    }
  }
}

dral::LifetimeData ReadLifetimeFile(const std::string& path) {
  try {
    return ParseFile(ContentsOf(path));
  } catch (const UsageError& error) {
    throw UsageError(Concat("lifetime file '", path, "': ", error.text));
  }
}

}  // namespace fuelgauge
