// SPDX-License-Identifier: MIT
#include "gauge/Errors.hpp"
#include "gauge/Reading.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <tuple>

using enum dral::FuelGaugeProperty;
using namespace fuelgauge;

// Errors that only a kernel's driver answers.
TEST(Reading, SaysWhyAValueIsMissingAndWhetherThatIsNormal) {
  // The property, its error, whether another driver's, whether it may be missing, and why it is.
  const std::tuple<dral::FuelGaugeProperty, int, bool, bool, std::string> cases[] = {
      {TimeToEmpty, ENODATA, false, true,
       "no estimate: the battery is not discharging, or its current is too small (ENODATA)"},
      {CycleCount, ENODATA, false, false, "the gauge has no value now (ENODATA)"},
      {CycleCount, ENODATA, true, true, "the gauge has no value now (ENODATA)"},
      {Status, ENODEV, false, false, "the gauge has gone, or does not answer (ENODEV)"},
      {Status, ENODEV, true, true, "its driver has no value now (ENODEV)"},
      {Status, EACCES, true, false, "no permission (EACCES)"},
      {Status, ETIMEDOUT, false, false, "the gauge does not answer on its bus (ETIMEDOUT)"},
  };
  for (const auto& [id, error, otherDriver, normal, reason] : cases) {
    const Property* property = &Properties.at(static_cast<std::size_t>(id));
    const Reading reading{property, dral::FuelGaugeStatus::NoData, 0, error, "", "", otherDriver};
    EXPECT_EQ(reading.MayBeMissing(), normal) << reason;
    EXPECT_EQ(reading.Reason(), reason);
  }
  for (const int error : {ENXIO, EREMOTEIO, EBUSY, EAGAIN, EINVAL, ENOSPC}) {
    EXPECT_EQ(ErrorName(error), ::strerrorname_np(error));
  }
}
