// SPDX-License-Identifier: MIT
#include "gauge/RegularFile.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "gauge/Descriptor.hpp"
#include "gauge/Errors.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

constexpr std::size_t MostBytes = 65536;

}  // namespace

std::string Unfit(const std::string& path) {
  // Not by std::filesystem: on a 32-bit machine it cannot see a file dated after the year 2037.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
    return "";  // opening it says so, and does no harm
  }
  if (!S_ISREG(status.st_mode)) {
    return "it is not a regular file";
  }
  const auto size = static_cast<std::size_t>(status.st_size);
  return size > MostBytes
             ? "it has " + std::to_string(size) + " bytes, more than " + std::to_string(MostBytes)
             : "";
}

std::string ContentsOf(const std::string& path) {
  if (const std::string reason = Unfit(path); !reason.empty()) {
    throw UsageError(reason);
  }
  // Should a pipe have taken its place meanwhile, this does not wait for it.
  const Descriptor file(
      Uninterrupted([&path] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
  std::string contents;
  std::array<char, 4096> page{};
  ssize_t count = file < 0 ? -1 : 1;
  while (count > 0 && contents.size() <= MostBytes) {
    count = Uninterrupted([&] { return ::read(file, page.data(), page.size()); });
    contents.append(page.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
  }
  if (count < 0) {
    throw UsageError(ErrorText(errno));
  }
  if (contents.size() > MostBytes) {
    throw UsageError("it has more than " + std::to_string(MostBytes) + " bytes");
  }
  return contents;
}

}  // namespace fuelgauge
