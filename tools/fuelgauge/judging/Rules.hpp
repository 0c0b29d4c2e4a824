// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gauge/LifetimeField.hpp"
#include "gauge/Readings.hpp"

namespace fuelgauge {

enum class Severity {
  Notice,   ///< worth knowing
  Warning,  ///< values may be wrong, or the battery unwell
  Error,    ///< values are wrong
};

/// By their names, "notice", "warning" and "error".
extern const std::map<std::string, Severity> Severities;

const std::string& NameOf(Severity severity);

/// What breaks a rule; empty when nothing does. It lives as long as the readings that it was found in.
struct Evidence {
  std::vector<const Reading*> readings;
  std::vector<std::pair<const LifetimeField*, int>>
      fields;        ///< of the lifetime record, and their values
  bool raw = false;  ///< to be shown in the unit in which a user gave a limit
};

/// One thing that must hold of a gauge that makes sense.
struct Rule {
  std::string_view name;
  Severity severity;
  std::string reason;  ///< what a finding means
  std::function<Evidence(const Readings& readings)> find;
  /// Rules whose findings only follow from this, where they show one of the same properties.
  std::vector<std::string_view> silences = {};
  /// Rules whose findings are to be expected, whatever they show.
  std::vector<std::string_view> excuses = {};
};

/// All but the limits of a command line. To add one is to add its row, its row in docs/metrics.md, and its case in the
/// session `check`.
extern const std::vector<Rule> Rules;

}  // namespace fuelgauge
