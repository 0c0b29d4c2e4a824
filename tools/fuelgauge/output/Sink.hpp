// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "gauge/Readings.hpp"
#include "output/Message.hpp"
#include "watching/Summary.hpp"

namespace fuelgauge {

/// Where a watch shows what it sees. Only `Sample` prints to standard output for all kinds.
class Sink {
 public:
  Sink() = default;
  virtual ~Sink() = default;
  Sink(const Sink&) = delete;
  Sink& operator=(const Sink&) = delete;

  /// Comes before the first read, which may take its time.
  virtual void Begin() {}

  /// Shows the @p readings of @p time. Programs get none of a gauge that gives nothing.
  virtual void Sample(const std::string& time, const Readings& readings) = 0;

  /// Tells people, on standard error, that the gauge has gone or come.
  virtual void Notice(const std::string& text) { Complain(text); }

  /// Comes when the window has another size, or when a shell has used it meanwhile.
  virtual void Redraw(bool /*shellWasThere*/) {}

  /// Tells people the summary; programs have the samples.
  virtual void End(const Summary& /*summary*/) {}
};

/// Prints the lines of @p summary on standard error.
void Tell(const Summary& summary);

}  // namespace fuelgauge
