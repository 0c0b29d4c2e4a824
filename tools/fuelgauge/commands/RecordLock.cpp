// SPDX-License-Identifier: MIT
#include "commands/RecordLock.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "gauge/Concat.hpp"
#include "gauge/RegularFile.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

int OpenToLock(const std::string& path, const Property& property) {
  const std::string refusal = Unfit(path);
  if (!refusal.empty()) {
    throw ToolError(ExitStatus::FileError, Concat(property.name, ": not written: ", refusal));
  }
  return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

}  // namespace

RecordLock::RecordLock(const Gauge& gauge, const Property& property)
    : file(OpenToLock(gauge.File(property), property)) {
  constexpr std::chrono::seconds Patience(3);
  const auto end = std::chrono::steady_clock::now() + Patience;
  while (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (std::chrono::steady_clock::now() >= end) {
      throw ToolError(ExitStatus::Busy, Concat("not written: waited ", Patience.count(),
                                               " s for another process, which holds a lock on '",
                                               gauge.File(property), "'"));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
}

}  // namespace fuelgauge
