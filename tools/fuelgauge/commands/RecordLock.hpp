// SPDX-License-Identifier: MIT
#pragma once

#include "gauge/Descriptor.hpp"
#include "gauge/Gauge.hpp"

namespace fuelgauge {

/// An advisory lock, flock(2), on a property's file. Of two processes that read, change and write the
/// record under such a lock, neither loses what the other wrote.
class RecordLock {
 public:
  /// Waits a few seconds for another process. A file that cannot be opened or locked is left unlocked:
  /// the read or the write that follows says what is wrong with it.
  /// @throws ToolError when another process keeps it, or the file is none that may be opened
  RecordLock(const Gauge& gauge, const Property& property);

 private:
  Descriptor file;
};

}  // namespace fuelgauge
