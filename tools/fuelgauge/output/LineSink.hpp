// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "output/Sink.hpp"

namespace fuelgauge {

/// Prints a line a sample; none of a gauge that gives nothing.
class LineSink : public Sink {
 public:
  using Line = std::string (*)(const std::string& time, const Readings& readings);

  /// Prints the @p header, if there is one. Only people get a summary at the end.
  LineSink(Line line, bool forPeople, const std::string& header = "");

  void Sample(const std::string& time, const Readings& readings) override;
  void End(const Summary& summary) override;

 private:
  Line line;
  bool forPeople;
};

/// A line for people.
std::string TextLine(const std::string& time, const Readings& readings);

/// A line of JSON, without the record, which changes over months.
std::string JsonLine(const std::string& time, const Readings& readings);

/// The raw values of the properties that are numbers or texts. One that was not read is an empty field.
std::string CsvHeader();
std::string CsvLine(const std::string& time, const Readings& readings);

/// @return @p text as a field of a CSV line: UTF-8 without control characters, in quotes where it needs
///         them
std::string CsvField(std::string_view text);

}  // namespace fuelgauge
