// SPDX-License-Identifier: MIT
#include "readings/Cause.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>

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
    ErrorInfo{ENODATA, "ENODATA", "the gauge has no value now"},
    ErrorInfo{EIO, "EIO", NoAnswer},
    ErrorInfo{EREMOTEIO, "EREMOTEIO", NoAnswer},
    ErrorInfo{ENXIO, "ENXIO", NoAnswer},
    ErrorInfo{ETIMEDOUT, "ETIMEDOUT", NoAnswer},
    ErrorInfo{EBUSY, "EBUSY", NoAnswer},
    ErrorInfo{EAGAIN, "EAGAIN", NoAnswer},
    ErrorInfo{ENODEV, "ENODEV", "the gauge has gone, or does not answer"},
};

const ErrorInfo* Find(int error) {
  return std::find_if(Errors.begin(), Errors.end(),
                      [error](const ErrorInfo& info) { return info.error == error; });
}

// @return what @p call gives once no signal interrupts it
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
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
  std::array<char, 4096> page{};  // the most that an attribute holds
  const auto count = Uninterrupted([&] { return ::read(file, page.data(), page.size()); });
  if (count < 0) {
    cause.error = errno;
  } else {
    cause.text.assign(page.data(), static_cast<std::size_t>(count));
  }
  ::close(file);
  return cause;
}

dral::FuelGaugeStatus Cause::Status(bool record) const {
  using enum dral::FuelGaugeStatus;
  if (!opened) {
    return FileError;
  }
  return text.empty() || record ? NoData : Failure;
}

std::string ErrorName(int error) {
  const auto* const found = Find(error);
  return found == Errors.end() ? std::to_string(error) : std::string(found->name);
}

std::string ErrorText(int error) {
  const auto* const found = Find(error);
  return found == Errors.end()
             ? std::strerror(error)
             : std::string(found->meaning).append(" (").append(found->name).append(")");
}

}  // namespace fuelgauge
