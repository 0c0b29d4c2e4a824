// SPDX-License-Identifier: MIT
#include "commands/WatchSignals.hpp"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

namespace fuelgauge {
namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a handler sees nothing else
volatile std::sig_atomic_t endStatus = static_cast<int>(ExitStatus::FileError);

// Calls only what a handler may call.
extern "C" void End(int /*signal*/) {
  termios unused{};
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  if (::tcgetattr(STDOUT_FILENO, &unused) == 0 && ::poll(&output, 1, 0) > 0) {
    // Behind the "^C" that the terminal shows.
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
  }
  ::_exit(endStatus);
}

void EndOn(int signal) {
  struct sigaction action {};
  ::sigaction(signal, nullptr, &action);
  if (action.sa_handler != SIG_IGN) {
    action = {};
    action.sa_handler = End;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);  // the second one kills
    ::sigaction(signal, &action, nullptr);
  }
}

}  // namespace

WatchSignals::WatchSignals() {
  EndOn(SIGINT);
  EndOn(SIGTERM);
  ::sigemptyset(&waitedFor);
  ::sigaddset(&waitedFor, SIGWINCH);
  ::sigaddset(&waitedFor, SIGCONT);
  ::sigprocmask(SIG_BLOCK, &waitedFor, nullptr);
}

void WatchSignals::EndWith(ExitStatus status) {
  endStatus = static_cast<int>(status);
}

int WatchSignals::CameBefore(std::chrono::steady_clock::time_point time) const {
  using std::chrono::nanoseconds;
  while (true) {
    const auto left =
        std::max(nanoseconds(0), nanoseconds(time - std::chrono::steady_clock::now()));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    timespec timeout{};
    timeout.tv_sec = static_cast<std::time_t>(seconds.count());
    timeout.tv_nsec = static_cast<long>((left - seconds).count());
    const int signal = ::sigtimedwait(&waitedFor, nullptr, &timeout);
    if (signal > 0 || errno != EINTR) {
      return std::max(signal, 0);
    }
  }
}

}  // namespace fuelgauge
