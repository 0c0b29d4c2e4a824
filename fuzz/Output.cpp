// SPDX-License-Identifier: MIT
// A gauge whose files hold any bytes, with a `|` between two: what is printed of them steers no
// terminal, and can be parsed.
#include <Bq27542FuelGauge.hpp>
#include <algorithm>
#include <charconv>
#include <set>

#include "Target.hpp"
#include "commands/Commands.hpp"
#include "output/LineSink.hpp"
#include "support/TemporaryFolder.hpp"

using namespace fuelgauge;

namespace {

// The line without what its quotes hold, where a `\` may escape a quote.
std::string Unquoted(const std::string& line, bool escapes) {
  std::string rest;
  bool quoted = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    for (; quoted && escapes && line.at(at) == '\\'; at += 2) {
      Require(std::string_view("\\\"n").find(line.at(at + 1)) != std::string_view::npos);
    }
    quoted ^= line.at(at) == '"';
    rest.append(quoted ? 0 : 1, line[at]);
  }
  Require(!quoted);
  return rest;
}

void RequireMetrics(std::istringstream lines) {
  std::set<std::string> series;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.rfind(' ');
    Require(series.insert(line.substr(0, end)).second);
    double number = 0;
    const char* const last = line.data() + line.size();
    Require(Unquoted(line, true)[0] == '#' ||
            std::from_chars(&line[end + 1], last, number).ptr == last);
  }
}

}  // namespace

void Target(const std::string& input) {
  static const TemporaryFolder folder;
  const Request request{{folder.At("")}, ""};
  static const auto files = dral::Bq27542FuelGauge::PropertyMapAt(folder.At(""));
  std::istringstream pieces(input);
  for (const Property& property : Properties) {
    std::string piece;
    std::getline(pieces, piece, '|');
    std::ofstream((*files)[property.id].location, std::ios::binary) << piece;
  }
  const auto run = [&request](Action (*add)(CLI::App & parser), const char* options) {
    CLI::App parser;
    const Action action = add(parser);
    parser.parse(options);
    return Printed([&] { action(request); });
  };
  run(AddList, "");
  Require(Json::parse(run(AddList, "--json")).size() == Properties.size() - 1);
  RequireMetrics(run(AddMetrics, ""));
  const Readings readings = Gauge(request.One()).ReadAll();
  std::istringstream csv =
      Printed([&] { std::cout << CsvHeader() + "\n" + CsvLine("now", readings); });
  std::string header, line, more;
  std::getline(std::getline(csv, header), line);
  line = Unquoted(line, false);
  Require(std::count(line.begin(), line.end(), ',') ==
          std::count(header.begin(), header.end(), ','));
  Require(!std::getline(csv, more));
}
