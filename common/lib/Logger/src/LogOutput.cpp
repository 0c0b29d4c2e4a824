// SPDX-License-Identifier: MIT
#include "LogOutput.hpp"

#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <locale>
#include <mutex>
#include <system_error>
#include <utility>

#include "Visible.hpp"

namespace dral {
namespace {

constexpr std::uint32_t DefaultLevel = 3;
constexpr std::uint32_t LowestPriority = 7;  // the last that syslog and journald know

void WriteToStandardError(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(STDERR_FILENO, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) {
      return;  // there is nowhere left to complain
    }
    bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
  }
}

std::uint32_t LevelFromEnvironment() {
  const char* const value = ::secure_getenv("KESP_LOG_LEVEL");
  if (value == nullptr) {
    return DefaultLevel;
  }
  const std::string_view text = value;
  std::uint32_t level = DefaultLevel;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), level);
  if (error != std::errc() || end != text.data() + text.size()) {
    WriteToStandardError("<4>KESP_LOG_LEVEL='" + Visible(text) +
                         "' is not a number from 0 to 4294967295; logging errors only\n");
    return DefaultLevel;
  }
  return level;
}

// Made at first use: a static initialiser of the program's may log before any of ours has run.
std::atomic<std::uint32_t>& HighestLevel() {
  static std::atomic<std::uint32_t> level = LevelFromEnvironment();
  return level;
}

struct Output {
  std::mutex mutex;
  LogOutput::Sink sink;
};

Output& TheOutput() {
  // Never destroyed: a static object's destructor may still log.
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
  static auto* const output = new Output;
  return *output;
}

std::string Line(const LogRecord& record) {
  const auto priority = std::min(static_cast<std::uint32_t>(record.level), LowestPriority);
  std::string line = "<";
  line.append(std::to_string(priority)).append(">").append(record.source).append(":");
  line.append(record.function).append(":").append(std::to_string(record.line));
  const std::string_view text = record.text;
  line.append(": ").append(Visible(text.substr(0, text.find_last_not_of('\n') + 1)));
  return line.append("\n");
}

void Emit(const LogRecord& record) {
  Output& output = TheOutput();
  std::unique_lock lock(output.mutex);
  if (output.sink) {
    output.sink(record);
    return;
  }
  lock.unlock();
  WriteToStandardError(Line(record));
}

}  // namespace

void LogOutput::SetLevel(LogLevel highest) {
  HighestLevel() = static_cast<std::uint32_t>(highest);
}

void LogOutput::SetSink(Sink sink) {
  Output& output = TheOutput();
  const std::scoped_lock lock(output.mutex);
  output.sink = std::move(sink);
}

bool LogClient::LevelIsEnabled(LogLevel level) {
  return static_cast<std::uint32_t>(level) <= HighestLevel();
}

LogClient::LogClient(std::string_view source, std::string_view function, int line, LogLevel level,
                     LogCategory category)
    : source(source), function(function), line(line), level(level), category(category) {
  text.imbue(std::locale::classic());
}

// A thread that another one cancels is unwound out of write(2); out of a destructor, that would end the whole
// process. So the cancellation waits for the thread's next system call.
LogClient::~LogClient() {
  int before = 0;
  ::pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before);
  try {
    Emit({source, function, line, level, category, text.str()});
  } catch (...) {
    WriteToStandardError("<3>a log record was lost: out of memory, or its sink threw\n");
  }
  ::pthread_setcancelstate(before, nullptr);
}

}  // namespace dral
