// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <utility>

namespace fuelgauge {

/// The number of an open file, which is closed with the object; negative when it could not be opened.
class Descriptor {
 public:
  explicit Descriptor(int number) : number(number) {}
  Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
  ~Descriptor() {
    if (number >= 0) {
      ::close(number);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  operator int() const { return number; }

 private:
  int number;
};

}  // namespace fuelgauge
