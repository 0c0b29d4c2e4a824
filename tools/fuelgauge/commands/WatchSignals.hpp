// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <csignal>

#include "commands/ExitStatus.hpp"

namespace fuelgauge {

/// The signals that matter to a watch. There is one, as long as the program runs.
///
/// Ctrl-C and a plain kill end the wait for the next sample; one that comes while a sample is taken ends
/// the wait behind it. What still blocks a second later, a read or a pipe that nobody empties, is left:
/// the program ends. A watch has nothing to restore. A signal that was ignored at the start stays so: a
/// script's job in the background ignores Ctrl-C.
class WatchSignals {
 public:
  WatchSignals();

  /// The program is to end with @p status from now on, should something block.
  static void EndWith(ExitStatus status);

  /// Waits until @p time.
  /// @return SIGINT or SIGTERM, the watch is to end; SIGWINCH, the window has another size; SIGCONT, the
  ///         shell was there meanwhile; 0 when none came before
  int CameBefore(std::chrono::steady_clock::time_point time) const;

 private:
  void EndOn(int signal);

  sigset_t ends{};
  sigset_t waitedFor{};  // those, and what redraws
};

}  // namespace fuelgauge
