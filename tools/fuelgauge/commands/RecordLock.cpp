// SPDX-License-Identifier: MIT
#include "commands/RecordLock.hpp"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <fstream>
#include <iomanip>
#include <locale>
#include <sstream>
#include <thread>

namespace fuelgauge {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::seconds Patience(3);
constexpr std::chrono::milliseconds Pause(20);

// From the kernel's table, whose lines are such as "1: FLOCK ADVISORY WRITE 815 fe:00:4711 0 EOF".
std::string Holder(int file) {
  struct stat status {};
  ::fstat(file, &status);
  std::ostringstream id;
  id.imbue(std::locale::classic());
  id << std::hex << std::setfill('0') << std::setw(2) << major(status.st_dev) << ":" << std::setw(2)
     << minor(status.st_dev) << ":" << std::dec << status.st_ino;
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);) {
    std::istringstream stream(line);
    std::array<std::string, 6> words;
    for (std::string& word : words) {
      stream >> word;
    }
    // A lock outlives the process that took it where another has the same open file.
    if (words[1] == "FLOCK" && words[5] == id.str() &&
        ::access(("/proc/" + words[4]).c_str(), F_OK) == 0) {
      return "process " + words[4];
    }
  }
  return "another process";
}

}  // namespace

RecordLock::RecordLock(const std::string& path)
    : file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
  const auto end = steady_clock::now() + Patience;
  while (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
    if (steady_clock::now() >= end) {
      const std::string holder = Holder(file);
      ::close(file);
      std::string text = "not written: waited ";
      text.append(std::to_string(Patience.count())).append(" s for ").append(holder);
      throw RecordBusy(text.append(", which holds a lock on '").append(path).append("'"));
    }
    std::this_thread::sleep_for(Pause);
  }
}

RecordLock::~RecordLock() {
  if (file >= 0) {
    ::close(file);
  }
}

}  // namespace fuelgauge
