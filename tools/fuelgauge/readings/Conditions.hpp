// SPDX-License-Identifier: MIT
#pragma once

#include "readings/LifetimeField.hpp"
#include "readings/Readings.hpp"

namespace fuelgauge {

// What rules ask. Of a value that was not read they hold nothing against the gauge.

bool Missing(const Reading& reading);
bool AllOnes(const Reading& reading);
bool Zero(const Reading& reading);
bool NeverZero(const Reading& reading);
bool Negative(const Reading& reading);
bool UnknownWord(const Reading& reading);

bool FullChargeMissing(const Readings& readings);
bool WrongSign(const Readings& readings);
bool DrainsUnseen(const Readings& readings);
bool FullTooEarly(const Readings& readings);
bool LevelContradicts(const Readings& readings);
bool ChargesDisagree(const Readings& readings);
bool PowerTenfold(const Readings& readings);
bool PowerZero(const Readings& readings);
bool BatteryUnwell(const Readings& readings);
bool Uncalibrated(const Readings& readings);
bool OutOfComfort(const Readings& readings);

bool CrossedField(const dral::LifetimeData& record, const LifetimeField& field);
bool InvalidField(const dral::LifetimeData& record, const LifetimeField& field);

}  // namespace fuelgauge
