// SPDX-License-Identifier: MIT
#include "output/LineSink.hpp"

#include <iostream>

#include "gauge/Concat.hpp"
#include "output/Json.hpp"
#include "output/Text.hpp"

namespace fuelgauge {

using enum dral::FuelGaugeProperty;

LineSink::LineSink(Line line, bool forPeople, const std::string& header)
    : line(line), forPeople(forPeople) {
  if (!header.empty()) {
    std::cout << header << "\n" << std::flush;  // the first read may take its time
  }
}

void LineSink::Sample(const std::string& time, const Readings& readings) {
  if (readings.AnySucceeded()) {
    std::cout << line(time, readings) << "\n";
  }
}

void LineSink::End(const Summary& summary) {
  if (forPeople) {
    Sink::End(summary);
  }
}

std::string TextLine(const std::string& time, const Readings& readings) {
  std::string line = time;
  for (const auto id : {Status, StateOfCharge, VoltageNow, CurrentNow, Temperature}) {
    line += "  " + TerminalSafe(readings[id].ForPeople());
  }
  return line;
}

std::string JsonLine(const std::string& time, const Readings& readings) {
  Json line = {{"time", time}};
  line.update(ToJson(readings));
  line.erase(std::string(dral::NameOf(LifetimeData)));
  return TerminalSafe(line.dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::string CsvHeader() {
  std::string header = "time";
  for (const Property& property : Properties) {
    header += property.type == Type::Lifetime ? "" : Concat(",", property.name);
  }
  return header;
}

std::string CsvLine(const std::string& time, const Readings& readings) {
  std::string line = time;
  for (const Reading& reading : readings) {
    if (reading.property->type != Type::Lifetime) {
      line.append(",").append(CsvField(reading.Bare()));
    }
  }
  return line;
}

std::string CsvField(std::string_view text) {
  const bool plain = text.find_first_of(",\"") == std::string_view::npos;
  return plain ? TerminalSafe(text) : Quoted(text, '"');
}

}  // namespace fuelgauge
