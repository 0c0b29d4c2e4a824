// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "output/Sink.hpp"

namespace fuelgauge {

/// @return @p text as a field of a CSV line: UTF-8 without control characters, in quotes where it needs
///         them
std::string CsvField(std::string_view text);

/// A header, and a line a sample with the raw values of the properties that are numbers or texts. A value
/// that was not read is an empty field.
class CsvSink : public Sink {
 public:
  void Begin() override;
  void Sample(const std::string& time, const Readings& readings) override;
};

}  // namespace fuelgauge
