// SPDX-License-Identifier: MIT
#pragma once

#include "output/Sink.hpp"

namespace fuelgauge {

/// A line a sample, for people.
class LineSink : public Sink {
 public:
  void Sample(const std::string& time, const Readings& readings) override;
  void End(const Summary& summary) override { Tell(summary); }
};

}  // namespace fuelgauge
