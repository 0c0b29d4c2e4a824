// SPDX-License-Identifier: MIT
#include "output/OutputFile.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>
#include <system_error>

#include "gauge/Descriptor.hpp"
#include "gauge/Number.hpp"
#include "gauge/ToolError.hpp"

namespace fuelgauge {
namespace {

// @return what @p call returns; throws what it failed with
template <typename Call>
auto Checked(const Call& call) {
  const auto result = Uninterrupted(call);
  if (result < 0) {
    throw std::system_error(errno, std::generic_category());
  }
  return result;
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

void Fill(int file, std::string_view text) {
  while (!text.empty()) {
    text.remove_prefix(
        static_cast<std::size_t>(Checked([&] { return ::write(file, text.data(), text.size()); })));
  }
  Checked([&] { return ::fchmod(file, 0644); });  // a collector runs as another user
  Checked([&] { return ::fsync(file); });
}

}  // namespace

void PutInPlace(const std::string& path, std::string_view text) {
  const std::size_t slash = path.rfind('/') + 1;
  const std::string name = path.substr(slash);
  const std::string prefix = "." + name + ".";  // not one that a textfile collector reads
  const std::string temporary = prefix + std::to_string(::getpid());
  std::string outcome = "' was not written: ";
  try {
    const Descriptor folder(Checked([folderName = path.substr(0, slash) + "."] {
      return ::open(folderName.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }));
    struct stat found {};
    const int error = ::fstatat(folder, name.c_str(), &found, AT_SYMLINK_NOFOLLOW) == 0 ? 0 : errno;
    const auto refuse = [&path, &outcome] {
      throw ToolError(ExitStatus::OutputError, "'" + path + outcome + "it is not a regular file");
    };
    if (name.empty() || (error == 0 && !S_ISREG(found.st_mode))) {
      refuse();
    }
    RemoveLeftOvers(folder, prefix);
    const Descriptor file(Checked([&] {
      const int made =
          ::openat(folder, temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
      if (made < 0 && errno == ENOENT && error == 0) {  // there are no others in /proc
        refuse();
      }
      return made;
    }));
    try {
      Fill(file, text);
      Checked([&] { return ::renameat(folder, temporary.c_str(), folder, name.c_str()); });
    } catch (...) {
      ::unlinkat(folder, temporary.c_str(), 0);
      throw;
    }
    outcome = "' was written, but may not outlast a power cut: ";
    Checked([&folder] {
      const int result = ::fsync(folder);
      return result != 0 && errno == EINVAL ? 0 : result;  // this file system syncs no folders
    });
  } catch (const std::system_error& failure) {
    throw ToolError(ExitStatus::OutputError, "'" + path + outcome + failure.code().message());
  }
}

}  // namespace fuelgauge
