// SPDX-License-Identifier: MIT
#include "commands/Presence.hpp"

#include "output/Message.hpp"

namespace fuelgauge {

bool Presence::Tell(const Gauge& gauge, const Readings& readings, const std::string& time) {
  const bool nowThere = readings.AnySucceeded();
  const bool changed = nowThere != there;
  if (changed && nowThere) {
    Complain("gauge found at " + time);
  } else if (changed) {
    Complain(gauge.Missing(readings) + (lastSeen.empty() ? "" : "; last read at " + lastSeen));
  }
  there = nowThere;
  lastSeen = nowThere ? time : lastSeen;
  return changed;
}

}  // namespace fuelgauge
