// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dral {

/// How an operation on a gauge property ended.
enum class FuelGaugeStatus : std::uint32_t {
  /// The operation was carried out. A write reports it once the file is open, even when the kernel
  /// then refuses the value: errno says so, and reading back shows what it kept.
  Success = 0,
  /// Refused (the property is not settable) or failed otherwise: the property is unknown, or a read
  /// as a number or bool found no file, no text, or no number that fits.
  Failure = 2,
  /// The property's file does not exist or cannot be opened (writes; reads as text or record); errno
  /// says which.
  FileError = 3,
  /// The file was opened, but is empty, too short for a record, or could not be read (reads as text or
  /// record); errno is then the read's error, or 0.
  NoData = 4,
};

}  // namespace dral
