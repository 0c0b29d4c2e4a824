// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <csignal>

#include "commands/ExitStatus.hpp"

namespace fuelgauge {

/// The signals that matter to a watch. There is one, as long as the program runs.
///
/// Ctrl-C and a plain kill end the program at once, whatever blocks: a read, or a pipe that nobody
/// empties. A watch has nothing to restore, and nothing unwritten but a sample that is not whole yet.
/// A signal that was ignored at the start stays so: a script's job in the background ignores Ctrl-C.
class WatchSignals {
 public:
  WatchSignals();

  /// The program is to end with @p status from now on.
  static void EndWith(ExitStatus status);

  /// Waits until @p time.
  /// @return SIGWINCH, the window has another size, or SIGCONT, the shell was there meanwhile; 0 when
  ///         neither came before
  int CameBefore(std::chrono::steady_clock::time_point time) const;

 private:
  sigset_t waitedFor{};
};

}  // namespace fuelgauge
