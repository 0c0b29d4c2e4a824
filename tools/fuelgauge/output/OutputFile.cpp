// SPDX-License-Identifier: MIT
#include "output/OutputFile.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>
#include <system_error>

#include "gauge/Concat.hpp"
#include "gauge/Descriptor.hpp"
#include "gauge/Number.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

// @return the @p result of a system call; throws what it failed with
auto Checked(auto result) {
  return result >= 0 ? result : throw std::system_error(errno, std::generic_category());
}

// Those of runs that were killed. One that still runs keeps its own.
void RemoveLeftOvers(int folder, const std::string& prefix) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(
      ::fdopendir(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)), ::closedir);
  while (const dirent* const entry = entries ? ::readdir(entries.get()) : nullptr) {
    const std::string name = static_cast<const char*>(entry->d_name);
    const pid_t process =
        name.starts_with(prefix) ? WholeNumber<pid_t>(name.substr(prefix.size())).value_or(0) : 0;
    if (process > 0 && (process == ::getpid() || (::kill(process, 0) != 0 && errno == ESRCH))) {
      ::unlinkat(folder, name.c_str(), 0);
    }
  }
}

// A file that is to take the place of a regular one, or of none.
int New(int folder, const std::string& name, const std::string& prefix,
        const std::string& temporary) {
  struct stat found {};
  const bool exists = ::fstatat(folder, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0;
  if (!name.empty() && (!exists || S_ISREG(found.st_mode))) {
    RemoveLeftOvers(folder, prefix);
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    const int file = ::openat(folder, temporary.c_str(), flags, 0600);
    if (file >= 0 || errno != ENOENT || !exists) {
      return Checked(file);
    }  // /proc has files, and takes none
  }
  throw std::runtime_error("it is not a regular file");
}

void Fill(int file, std::string_view text) {
  while (!text.empty()) {
    text.remove_prefix(static_cast<std::size_t>(Checked(::write(file, text.data(), text.size()))));
  }
  Checked(::fchmod(file, 0644));  // a collector runs as another user
  Checked(::fsync(file));
}

}  // namespace

void PutInPlace(const std::string& path, std::string_view text) {
  const std::size_t slash = path.rfind('/') + 1;
  const std::string name = path.substr(slash);
  const std::string prefix = "." + name + ".";  // not one that a textfile collector reads
  const std::string temporary = prefix + std::to_string(::getpid());
  std::string outcome = "was not written";
  try {
    const Descriptor folder(
        Checked(::open((path.substr(0, slash) + ".").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    const Descriptor file(New(folder, name, prefix, temporary));
    try {
      Fill(file, text);
      Checked(::renameat(folder, temporary.c_str(), folder, name.c_str()));
    } catch (...) {
      ::unlinkat(folder, temporary.c_str(), 0);
      throw;
    }
    outcome = "was written, but may not outlast a power cut";
    if (::fsync(folder) != 0 && errno != EINVAL) {  // which is a file system that syncs no folders
      Checked(-1);
    }
  } catch (const std::runtime_error& failure) {
    throw ToolError(ExitStatus::OutputError,
                    Concat("'", path, "' ", outcome, ": ", failure.what()));
  }
}

}  // namespace fuelgauge
