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

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): a handler sees nothing else
volatile std::sig_atomic_t endStatus = static_cast<int>(ExitStatus::FileError);
volatile std::sig_atomic_t endSignal = 0;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

// Both handlers call only what a handler may call.
extern "C" void EndNow(int /*signal*/) {
  termios unused{};
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  if (::tcgetattr(STDOUT_FILENO, &unused) == 0 && ::poll(&output, 1, 0) > 0) {
    // Behind the "^C" that the terminal shows.
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
  }
  ::_exit(endStatus);
}

extern "C" void EndSoon(int signal) {
  endSignal = signal;
  ::alarm(1);
}

void Handle(int signal, void (*handler)(int), unsigned flags) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = static_cast<int>(flags);
  ::sigaction(signal, &action, nullptr);
}

}  // namespace

WatchSignals::WatchSignals() {
  Handle(SIGALRM, EndNow, 0);
  ::sigemptyset(&ends);
  ::sigemptyset(&waitedFor);
  EndOn(SIGINT);
  EndOn(SIGTERM);
  ::sigaddset(&waitedFor, SIGWINCH);
  ::sigaddset(&waitedFor, SIGCONT);
  ::sigprocmask(SIG_BLOCK, &waitedFor, nullptr);
  ::sigprocmask(SIG_UNBLOCK, &ends, nullptr);
}

void WatchSignals::EndOn(int signal) {
  struct sigaction action {};
  ::sigaction(signal, nullptr, &action);
  if (action.sa_handler != SIG_IGN) {
    Handle(signal, EndSoon, SA_RESETHAND | SA_NODEFER | SA_RESTART);  // the second one kills
    ::sigaddset(&ends, signal);
    ::sigaddset(&waitedFor, signal);
  }
}

void WatchSignals::EndWith(ExitStatus status) {
  endStatus = static_cast<int>(status);
}

int WatchSignals::CameBefore(std::chrono::steady_clock::time_point time) const {
  using std::chrono::nanoseconds;
  ::sigprocmask(SIG_BLOCK, &ends, nullptr);  // now or in the wait: none is lost between
  int signal = endSignal;
  bool interrupted = signal == 0;
  while (interrupted) {
    const auto left =
        std::max(nanoseconds(0), nanoseconds(time - std::chrono::steady_clock::now()));
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    timespec timeout{};
    timeout.tv_sec = static_cast<std::time_t>(seconds.count());
    timeout.tv_nsec = static_cast<long>((left - seconds).count());
    signal = ::sigtimedwait(&waitedFor, nullptr, &timeout);
    interrupted = signal < 0 && errno == EINTR;
  }
  if (signal == SIGINT || signal == SIGTERM) {
    ::alarm(1);
  }
  ::sigprocmask(SIG_UNBLOCK, &ends, nullptr);
  return std::max(signal, 0);
}

}  // namespace fuelgauge
