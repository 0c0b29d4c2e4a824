// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace fuelgauge {

/// Another process holds the lock; what() says which one, and on what.
class RecordBusy : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// An advisory lock, flock(2), on a property's file. Of two processes that read, change and write the
/// record under such a lock, neither loses what the other wrote.
class RecordLock {
 public:
  /// Waits a few seconds for another process. A file that cannot be opened or locked is left unlocked:
  /// the read or the write that follows says what is wrong with it.
  /// @throws RecordBusy
  explicit RecordLock(const std::string& path);
  ~RecordLock();
  RecordLock(const RecordLock&) = delete;
  RecordLock& operator=(const RecordLock&) = delete;

 private:
  int file;
};

}  // namespace fuelgauge
