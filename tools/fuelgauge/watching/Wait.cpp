// SPDX-License-Identifier: MIT
#include "watching/Wait.hpp"

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <ctime>

namespace fuelgauge {
namespace {

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): a handler sees nothing else
volatile std::sig_atomic_t endStatus = static_cast<int>(ExitStatus::FileError);
volatile std::sig_atomic_t noted = 0;  // a Cause: the greatest since it was taken last
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

// The handlers call only what a handler may call.
extern "C" void EndNow(int /*signal*/) {
  termios unused{};
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  if (::tcgetattr(STDOUT_FILENO, &unused) == 0 && ::poll(&output, 1, 0) > 0) {
    // Behind the "^C" that the terminal shows.
    [[maybe_unused]] const ssize_t written = ::write(STDOUT_FILENO, "\n", 1);
  }
  ::_exit(endStatus);
}

extern "C" void Note(int signal) {
  using enum Wait::Cause;
  const auto cause = signal == SIGWINCH ? Window : signal == SIGCONT ? Shell : Signal;
  if (cause == Signal) {
    ::alarm(1);
  }
  noted = std::max(static_cast<int>(cause), int{noted});
}

void Handle(int signal, void (*handler)(int), unsigned flags) {
  struct sigaction action {};
  ::sigaction(signal, nullptr, &action);
  if (action.sa_handler != SIG_IGN || signal == SIGALRM) {
    action = {};
    action.sa_handler = handler;
    action.sa_flags = static_cast<int>(flags);
    ::sigaction(signal, &action, nullptr);
  }
}

// What has come since this was asked last; a signal to end stays.
Wait::Cause Came() {
  const auto cause = static_cast<Wait::Cause>(noted);
  noted = cause == Wait::Cause::Signal ? noted : 0;
  return cause;
}

}  // namespace

Wait::Wait() {
  Handle(SIGALRM, EndNow, 0);
  for (const int signal : {SIGINT, SIGTERM}) {
    Handle(signal, Note, SA_RESETHAND | SA_NODEFER | SA_RESTART);  // the second one kills
  }
  for (const int signal : {SIGWINCH, SIGCONT}) {
    Handle(signal, Note, SA_RESTART);
  }
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

void Wait::EndWith(ExitStatus status) {
  endStatus = static_cast<int>(status);
}

Wait::Cause Wait::Until(std::chrono::steady_clock::time_point time, int events) {
  sigset_t all;
  sigset_t none;
  ::sigfillset(&all);
  ::sigprocmask(SIG_SETMASK, &all, &none);  // now or in the wait: none is lost between
  Cause cause = Came();
  while (cause == Cause::Time) {
    const std::chrono::nanoseconds left = time - std::chrono::steady_clock::now();
    if (left.count() <= 0) {
      break;
    }
    const timespec timeout{static_cast<std::time_t>(left.count() / 1000000000),
                           static_cast<long>(left.count() % 1000000000)};
    // Without a question, the output tells that the reader has gone.
    std::array<pollfd, 2> files = {{{STDOUT_FILENO, 0, 0}, {events, POLLIN, 0}}};
    const bool came = ::ppoll(files.data(), files.size(), &timeout, &none) > 0;
    cause = !came ? Came() : files[0].revents != 0 ? Cause::Reader : Cause::Events;
  }
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  return cause;
}

}  // namespace fuelgauge
