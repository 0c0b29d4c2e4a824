// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include "gauge/ToolError.hpp"

namespace fuelgauge {

/// The wait between the samples of a watch, and the signals that matter to it. There is one, as long as the
/// program runs.
///
/// Ctrl-C and a plain kill end the wait; one that comes while a sample is taken ends the wait behind it. What
/// still blocks a second later, a read or a pipe that nobody empties, is left: the program ends. A watch has
/// nothing to restore. A signal that was ignored at the start stays so: a script's job in the background
/// ignores Ctrl-C.
class Wait {
 public:
  /// What ended a wait.
  enum class Cause {
    Time,
    Window,  ///< it has another size
    Shell,   ///< it was there meanwhile
    Signal,  ///< the watch is to end
    Events,
    Reader,  ///< nobody reads the output any more
  };

  Wait();

  /// The program is to end with @p status from now on, should something block.
  static void EndWith(ExitStatus status);

  /// Waits until @p time, or until something comes before, such as what makes @p events readable; a
  /// negative number never is.
  static Cause Until(std::chrono::steady_clock::time_point time, int events);
};

}  // namespace fuelgauge
