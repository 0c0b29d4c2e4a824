// SPDX-License-Identifier: MIT
#pragma once

#include "output/Sink.hpp"

namespace fuelgauge {

/// A line of JSON a sample, without the record, which changes over months.
class JsonSink : public Sink {
 public:
  void Sample(const std::string& time, const Readings& readings) override;
};

}  // namespace fuelgauge
