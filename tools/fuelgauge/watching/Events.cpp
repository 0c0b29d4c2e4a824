// SPDX-License-Identifier: MIT
#include "watching/Events.hpp"

#include <fcntl.h>
#include <linux/netlink.h>
#include <linux/nsfs.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <utility>

#include "gauge/Concat.hpp"
#include "gauge/Errors.hpp"

namespace fuelgauge {
namespace {

sockaddr* Generic(sockaddr_nl& address) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the calls ask for it
  return reinterpret_cast<sockaddr*>(&address);
}

int Subscribe() {
  const int number =
      ::socket(AF_NETLINK, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_KOBJECT_UEVENT);
  sockaddr_nl kernel{};
  kernel.nl_family = AF_NETLINK;
  kernel.nl_groups = 1;  // the kernel's own messages; a device manager's are in another group
  if (number >= 0 && ::bind(number, Generic(kernel), sizeof kernel) != 0) {
    const int error = errno;
    ::close(number);
    errno = error;
    return -1;
  }
  return number;
}

// The kernel sends to the network namespaces that the first user namespace owns. Where the owner cannot be
// seen from here, it is one above, and may be that.
bool IsForeignNetwork() {
  constexpr ino_t FirstUserNamespace = 0xEFFFFFFD;
  const Descriptor network(::open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC));
  const Descriptor owner(network < 0 ? -1 : ::ioctl(network, NS_GET_USERNS));
  struct stat status {};
  return owner >= 0 && ::fstat(owner, &status) == 0 && status.st_ino != FirstUserNamespace;
}

}  // namespace

bool Concerns(std::string_view message, std::string_view supply) {
  const auto valueOf = [message](const std::string& key) {
    const std::string start = std::string(1, '\0') + key + "=";
    const auto found = message.find(start);
    const auto value =
        found == std::string_view::npos ? std::string_view() : message.substr(found + start.size());
    return value.substr(0, value.find('\0'));
  };
  const std::string_view action = valueOf("ACTION");
  const std::string_view path = valueOf("DEVPATH");
  const std::string_view subsystem = valueOf("SUBSYSTEM");
  const std::string folder = Concat("/power_supply/", supply, "/");
  const std::string_view chip = supply.substr(0, supply.find('-'));
  return (subsystem == "power_supply" && Concat(path, "/").ends_with(folder)) ||
         (action == "add" && path.find(folder) != std::string_view::npos) ||
         (action == "bind" && subsystem == "i2c" &&
          valueOf("MODALIAS").find(chip) != std::string_view::npos);
}

Events::Events(std::string supply)
    : supply(std::move(supply)), socket(this->supply.empty() ? -1 : Subscribe()) {
  if (!this->supply.empty() && socket < 0) {
    lack = ErrorText(errno);
  } else if (socket >= 0 && IsForeignNetwork()) {
    lack = "this network namespace, a container's, gets none";
  }
}

bool Events::Take() const {
  bool concerned = false;
  std::array<char, 8192> message{};  // the kernel's have 2 KiB at most
  while (true) {
    sockaddr_nl sender{};
    socklen_t length = sizeof sender;
    const ssize_t count =
        ::recvfrom(socket, message.data(), message.size(), 0, Generic(sender), &length);
    if (count >= 0) {
      concerned |=
          sender.nl_pid == 0 && Concerns({message.data(), static_cast<std::size_t>(count)}, supply);
    } else if (errno == ENOBUFS) {
      concerned = true;  // what was lost is not known
    } else if (errno != EINTR) {
      return concerned;
    }
  }
}

}  // namespace fuelgauge
