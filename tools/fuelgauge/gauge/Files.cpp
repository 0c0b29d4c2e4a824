// SPDX-License-Identifier: MIT
#include "gauge/Files.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "gauge/Concat.hpp"
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
  return size > MostBytes ? Concat("it has ", size, " bytes, more than ", MostBytes) : "";
}

std::string ContentsOf(const std::string& path) {
  if (const std::string reason = Unfit(path); !reason.empty()) {
    throw UsageError(reason);
  }
  // Should a pipe have taken its place meanwhile, this does not wait for it.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  std::string contents;
  std::array<char, 4096> page{};
  ssize_t count = file;
  while (count >= 0 && contents.size() <= MostBytes) {
    count = ::read(file, page.data(), page.size());
    if (count == 0) {
      return contents;
    }
    contents.append(page.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
  }
  throw UsageError(count < 0 ? ErrorText(errno) : Concat("it has more than ", MostBytes, " bytes"));
}

std::string FirstLine(const std::string& path) {
  try {
    const std::string contents = ContentsOf(path);
    return contents.substr(0, contents.find('\n'));
  } catch (const UsageError& error) {
    throw UsageError(Concat("'", path, "': ", error.text));
  }
}

std::vector<std::string> PathsIn(const std::string& folder) {
  std::error_code error;
  std::vector<std::string> paths;
  for (std::filesystem::directory_iterator entry(folder, error), end; entry != end;
       entry.increment(error)) {
    paths.push_back(entry->path());
  }
  if (error) {
    throw UsageError(Concat("'", folder, "': ", ErrorText(error.value())));
  }
  std::sort(paths.begin(), paths.end());
  return paths;
}

bool Exists(const std::string& path) {
  return ::access(path.c_str(), F_OK) == 0;
}

}  // namespace fuelgauge
