// SPDX-License-Identifier: MIT
#include "output/Metrics.hpp"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>

#include "commands/Commands.hpp"
#include "output/Message.hpp"

namespace fuelgauge {
namespace {

// @return 0 or the errno of what failed
int WriteAll(int file, const std::string& text) {
  std::size_t written = 0;
  while (written < text.size()) {
    const ssize_t part = ::write(file, text.data() + written, text.size() - written);
    if (part < 0) {
      return errno;
    }
    written += static_cast<std::size_t>(part);
  }
  // The collector runs as another user, and mkstemp lets nobody else read.
  return ::fchmod(file, 0644) == 0 ? 0 : errno;
}

// Puts the file in place whole, so that nobody reads half of it. The temporary one's name does not end
// in .prom: the textfile collector passes it over.
// @return 0 or the errno of what failed
int Replace(const std::string& path, const std::string& text) {
  struct stat old {};
  if (::stat(path.c_str(), &old) == 0 && !S_ISREG(old.st_mode)) {
    return S_ISDIR(old.st_mode) ? EISDIR : EEXIST;  // a rename would take the place of /dev/null
  }
  std::string temporary = path + ".XXXXXX";
  const int file = ::mkstemp(temporary.data());
  if (file < 0) {
    return errno;
  }
  int error = WriteAll(file, text);
  if (::close(file) != 0 && error == 0) {
    error = errno;
  }
  if (error == 0 && std::rename(temporary.c_str(), path.c_str()) != 0) {
    error = errno;
  }
  if (error != 0) {
    ::unlink(temporary.c_str());
  }
  return error;
}

ExitStatus Metrics(const Gauge& gauge, const std::optional<std::string>& output) {
  const std::string text = MetricsOf(gauge.ReadAll());
  if (!output) {
    std::cout << text;
  } else if (const int error = Replace(*output, text); error != 0) {
    Complain("'" + *output + "' was not written: " + std::strerror(error));
    return ExitStatus::OutputError;
  }
  return ExitStatus::Success;
}

}  // namespace

Action AddMetrics(CLI::App& parser) {
  const auto output = std::make_shared<std::optional<std::string>>();
  parser.add_option("--output", *output, "Put the text in place as this file, whole")
      ->type_name("FILE");
  return [output](const GaugeOptions& which) { return Metrics(Gauge(which), *output); };
}

}  // namespace fuelgauge
