// SPDX-License-Identifier: MIT
// Waits until the kernel announces something of a supply, and says what has changed of the gauge.
#include <linux/netlink.h>
#include <sys/socket.h>

#include <OpenFuelGauge.hpp>
#include <array>
#include <cerrno>
#include <iostream>
#include <string>
#include <string_view>

using namespace dral;

int main() {
  const int kernel = socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC, NETLINK_KOBJECT_UEVENT);
  sockaddr_nl address{};
  address.nl_family = AF_NETLINK;
  address.nl_groups = 1;
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a socket has no other way
  if (bind(kernel, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) {
    return 1;
  }
  const auto gauge = OpenFuelGauge();
  std::array<char, 8192> message{};
  for (std::string last;;) {
    const auto [status, charging] = gauge->Get<std::string>(FuelGaugeProperty::Status);
    const std::string now = status == FuelGaugeStatus::Success ? charging : "no gauge";
    if (now != last) {
      std::cout << now << std::endl;
      last = now;
    }
    ssize_t length = 0;
    do {  // until one is about the gauge, or some were lost
      length = recv(kernel, message.data(), message.size(), 0);
    } while (length < 0 ? errno == EINTR
                        : std::string_view(message.data(), static_cast<std::size_t>(length))
                                  .find("/power_supply/bq27542-0") == std::string_view::npos);
  }
}
