// SPDX-License-Identifier: MIT
#include "gauge/Errors.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <system_error>

#include "gauge/Concat.hpp"

namespace fuelgauge {
namespace {

using enum dral::FuelGaugeStatus;

constexpr std::string_view NoAnswer = "the gauge does not answer on its bus";

struct ErrorInfo {
  int error;
  std::string_view name;
  dral::FuelGaugeStatus status;
  std::string_view meaning;
};

// What a file of the power_supply class has been seen to answer. A dead bus is EIO, ENODEV or
// the adapter's own errno, depending on the kernel.
constexpr std::array Errors = {
    ErrorInfo{ENOENT, "ENOENT", FileError, "no such file"},
    ErrorInfo{EACCES, "EACCES", FileError, "no permission"},
    ErrorInfo{EISDIR, "EISDIR", NoData, "it is a folder"},
    ErrorInfo{ENODATA, "ENODATA", NoData, "the gauge has no value now"},
    ErrorInfo{EINVAL, "EINVAL", NoData, "its driver takes no such value"},
    ErrorInfo{ENOSPC, "ENOSPC", NoData, "there is no room for it"},
    ErrorInfo{EIO, "EIO", NoData, NoAnswer},
    ErrorInfo{EREMOTEIO, "EREMOTEIO", NoData, NoAnswer},
    ErrorInfo{ENXIO, "ENXIO", NoData, NoAnswer},
    ErrorInfo{ETIMEDOUT, "ETIMEDOUT", NoData, NoAnswer},
    ErrorInfo{EBUSY, "EBUSY", NoData, NoAnswer},
    ErrorInfo{EAGAIN, "EAGAIN", NoData, "the supply is being registered, or removed: try again"},
    ErrorInfo{ENODEV, "ENODEV", NoData, "the gauge has gone, or does not answer"},
};

const ErrorInfo* FindError(int error) {
  return std::find_if(Errors.begin(), Errors.end(),
                      [error](const ErrorInfo& info) { return info.error == error; });
}

}  // namespace

std::string ErrorName(int error) {
  const auto* const found = FindError(error);
  return found == Errors.end() ? std::to_string(error) : std::string(found->name);
}

std::string ErrorText(int error) {
  const auto* const found = FindError(error);
  return found == Errors.end() ? std::generic_category().message(error)
                               : Concat(found->meaning, " (", found->name, ")");
}

dral::FuelGaugeStatus StatusOf(int error) {
  const auto* const found = FindError(error);
  return found == Errors.end() ? FileError : found->status;
}

}  // namespace fuelgauge
