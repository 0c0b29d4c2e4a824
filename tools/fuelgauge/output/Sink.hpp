// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "gauge/Readings.hpp"
#include "output/Message.hpp"
#include "watching/Summary.hpp"

namespace fuelgauge {

/// Where a watch shows what it sees.
class Sink {
 public:
  virtual ~Sink() = default;

  /// Shows the @p readings of @p time. Programs get none of a gauge that gives nothing.
  virtual void Sample(const std::string& time, const Readings& readings) = 0;

  /// Tells people, on standard error, that the gauge has gone or come.
  virtual void Notice(const std::string& text) { Complain(text); }

  /// Comes when the window has another size, or when a shell has used it meanwhile.
  virtual void Redraw(bool /*shellWasThere*/) {}

  /// Tells people the summary, on standard error.
  virtual void End(const Summary& summary) {
    for (const std::string& line : summary.Lines()) {
      Complain(line);
    }
  }
};

}  // namespace fuelgauge
