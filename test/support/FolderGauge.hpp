// SPDX-License-Identifier: MIT
#pragma once

#include <Bq27542FuelGauge.hpp>

#include "support/LogCapture.hpp"
#include "support/Outcome.hpp"
#include "support/TemporaryFolder.hpp"

inline std::unique_ptr<dral::PropertyMap> MapOf(dral::FuelGaugeProperty property,
                                                dral::PropertyInfo info) {
  return std::make_unique<dral::PropertyMap>(dral::PropertyMap{{property, std::move(info)}});
}

/// A gauge over the files of a folder, and the failures that it logs.
struct FolderGauge {
  TemporaryFolder folder;
  LogCapture log{3};
  dral::Bq27542FuelGauge gauge{"", dral::Bq27542FuelGauge::PropertyMapAt(folder.path)};
};
