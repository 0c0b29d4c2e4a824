// SPDX-License-Identifier: MIT
#include "readings/Cause.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

#include "readings/Descriptor.hpp"

namespace fuelgauge {
namespace {

constexpr std::string_view NoAnswer = "the gauge does not answer on its bus";

struct ErrorInfo {
  int error;
  std::string_view name;
  std::string_view meaning;
};

// What a file of the power_supply class has been seen to answer. A dead bus is EIO, ENODEV or
// the adapter's own errno, depending on the kernel.
constexpr std::array Errors = {
    ErrorInfo{ENOENT, "ENOENT", "no such file"},
    ErrorInfo{EACCES, "EACCES", "no permission to read it"},
    ErrorInfo{EISDIR, "EISDIR", "it is a folder"},
    ErrorInfo{ENODATA, "ENODATA", "the gauge has no value now"},
    ErrorInfo{EIO, "EIO", NoAnswer},
    ErrorInfo{EREMOTEIO, "EREMOTEIO", NoAnswer},
    ErrorInfo{ENXIO, "ENXIO", NoAnswer},
    ErrorInfo{ETIMEDOUT, "ETIMEDOUT", NoAnswer},
    ErrorInfo{EBUSY, "EBUSY", NoAnswer},
    ErrorInfo{EAGAIN, "EAGAIN", "the supply is being registered, or removed: try again"},
    ErrorInfo{ENODEV, "ENODEV", "the gauge has gone, or does not answer"},
};

const ErrorInfo* FindError(int error) {
  return std::find_if(Errors.begin(), Errors.end(),
                      [error](const ErrorInfo& info) { return info.error == error; });
}

}  // namespace

Cause Cause::Of(const std::string& path) {
  Cause cause;
  const int file = Uninterrupted([&path] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); });
  if (file < 0) {
    cause.error = errno;
    return cause;
  }
  cause.opened = true;
  std::array<char, 4096> page{};  // the most that an attribute of text holds
  ssize_t count = 0;
  do {
    count = Uninterrupted([&] { return ::read(file, page.data(), page.size()); });
    cause.error = count < 0 ? errno : 0;
    cause.text.append(page.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  } while (count > 0);
  ::close(file);
  if (cause.error != 0) {
    cause.text.clear();
  }
  return cause;
}

dral::FuelGaugeStatus Cause::Status(bool record) const {
  using enum dral::FuelGaugeStatus;
  if (!opened) {
    return FileError;
  }
  return text.empty() || record ? NoData : Failure;
}

std::string WriteRefusal(const std::string& path) {
  const int file = Uninterrupted([&path] { return ::open(path.c_str(), O_WRONLY | O_CLOEXEC); });
  if (file >= 0) {
    ::close(file);
    return "the file could not be opened, and could a moment later";
  }
  return errno == EACCES ? "no permission to write it (EACCES)" : ErrorText(errno);
}

std::string ErrorName(int error) {
  const auto* const found = FindError(error);
  return found == Errors.end() ? std::to_string(error) : std::string(found->name);
}

std::string ErrorText(int error) {
  const auto* const found = FindError(error);
  return found == Errors.end()
             ? std::strerror(error)
             : std::string(found->meaning).append(" (").append(found->name).append(")");
}

}  // namespace fuelgauge
