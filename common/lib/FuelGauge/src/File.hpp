// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <pthread.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace dral {

/// An open file, closed with the object. Programs that other threads start do not inherit it. It throws
/// nothing, and retries calls that a signal interrupts. `errno`, if it was 0, then is as `Error()`.
class File {
 public:
  /// @param flags open(2)'s; a missing file is not created
  File(const std::string& path, int flags) {
    do {
      // The mode spares a hardened C library its run-time check for a missing one.
      descriptor = ::open(path.c_str(), flags | O_CLOEXEC, 0);
      error = descriptor < 0 ? errno : 0;
    } while (IsRetried());
  }
  ~File() {
    if (descriptor >= 0 && !Close()) {
      errno = error;  // a read does not count the close's
    }
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  /// @return the errno of the call that failed, 0 if none has
  int Error() const { return error; }

  /// Fills @p bytes, unless the file ends or the read fails.
  /// @return how many were read
  std::size_t Read(std::span<char> bytes) { return Transfer(::read, bytes.data(), bytes.size()); }

  /// Writes @p bytes, in one call if the file takes them all, and closes the file: some tell only then
  /// that they could not store them.
  void Write(std::string_view bytes) {
    Transfer(::write, bytes.data(), bytes.size());
    if (!Close()) {
      error = error != 0 ? error : errno;
      errno = error;
    }
  }

 private:
  // A call's error that is to be forgotten, since the call is made again.
  bool IsRetried() {
    if (error != EINTR) {
      return false;
    }
    error = 0;
    errno = 0;
    return true;
  }

  // A thread that another one cancels is unwound out of close(2); out of a destructor, that would end the
  // whole process. So the cancellation waits for the thread's next system call.
  bool Close() {
    int before = 0;
    ::pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &before);
    const bool closed = ::close(std::exchange(descriptor, -1)) == 0;  // on Linux even when it fails
    ::pthread_setcancelstate(before, nullptr);
    return closed;
  }

  template <typename Call, typename Byte>
  std::size_t Transfer(Call call, Byte* bytes, std::size_t size) {
    std::size_t done = 0;
    ssize_t count = 1;
    while (count != 0 && done < size && error == 0) {
      count = call(descriptor, bytes + done, size - done);
      error = count < 0 ? errno : 0;
      IsRetried();
      done += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return done;
  }

  int descriptor = -1;
  int error = 0;
};

}  // namespace dral
