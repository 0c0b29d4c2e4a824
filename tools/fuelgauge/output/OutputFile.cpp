// SPDX-License-Identifier: MIT
#include "output/OutputFile.hpp"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <system_error>

namespace fuelgauge {
namespace {

[[noreturn]] void Fail(int error = errno) {
  throw std::system_error(error, std::generic_category());
}

// @return what @p call returns once no signal has interrupted it; throws what it failed with
template <typename Call>
auto Checked(const Call& call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  if (result < 0) {
    Fail();
  }
  return result;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, path.rfind('/') + 1);
}

// @return what is known of the file behind the links of @p path; none when there is no file yet
std::optional<struct stat> RegularFile(const std::string& path) {
  struct stat found {};
  if (::stat(path.c_str(), &found) != 0) {
    if (errno != ENOENT) {
      Fail();
    }
    return std::nullopt;
  }
  if (!S_ISREG(found.st_mode)) {
    throw OutputError("'" + path + "' was not written: it is not a regular file");
  }
  return found;
}

// Where the last link of @p path leads, whether there is a file yet or not.
std::string FileMeant(const std::string& path) {
  std::string meant = path;
  std::array<char, PATH_MAX> target{};
  ssize_t length = 0;
  while ((length = ::readlink(meant.c_str(), target.data(), target.size())) >= 0) {
    // Such as /dev/stdout: whoever has the file open would go on writing to the one that was replaced.
    struct statfs system {};
    const std::string folder = FolderOf(meant);
    if (::statfs(folder.empty() ? "." : folder.c_str(), &system) == 0 &&
        system.f_type == PROC_SUPER_MAGIC) {
      throw OutputError("'" + path + "' was not written: it leads to a file that is open already");
    }
    const std::string next(target.data(), static_cast<std::size_t>(length));
    meant = next.front() == '/' ? next : FolderOf(meant).append(next);
  }
  return meant;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number(number) {}
  ~Descriptor() { ::close(number); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  operator int() const { return number; }

 private:
  int number;
};

// Who ends us between the making of the temporary file and its end leaves none behind.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t all;
    ::sigfillset(&all);
    ::sigprocmask(SIG_SETMASK, &all, &before);
  }
  ~SignalsHeld() { ::sigprocmask(SIG_SETMASK, &before, nullptr); }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t before{};
};

// A file beside the one meant, gone unless it took its place. Its name does not end in .prom: the
// textfile collector passes it over.
class Temporary {
 public:
  explicit Temporary(const std::string& folder)
      : name(folder + ".fuelgauge.XXXXXX"),
        file(Checked([this] { return ::mkostemp(name.data(), O_CLOEXEC); })) {}
  ~Temporary() {
    if (!name.empty()) {
      ::unlink(name.c_str());
    }
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;

  void Fill(std::string_view text, const std::optional<struct stat>& old) const {
    while (!text.empty()) {
      text.remove_prefix(static_cast<std::size_t>(
          Checked([&] { return ::write(file, text.data(), text.size()); })));
    }
    // A collector runs as another user, and mkostemp lets nobody else read.
    mode_t mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    if (old) {
      mode = old->st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
      KeepOwner(*old);
    }
    Checked([&] { return ::fchmod(file, mode); });
    Checked([&] { return ::fsync(file); });
  }

  void TakeThePlaceOf(const std::string& path) {
    Checked([&] { return std::rename(name.c_str(), path.c_str()); });
    name.clear();
  }

 private:
  // Root alone may give a file away, a sandbox may forbid even the call, and a user namespace may not
  // have that owner.
  void KeepOwner(const struct stat& old) const {
    struct stat made {};
    Checked([&] { return ::fstat(file, &made); });
    const bool same = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
    if (!same && ::fchown(file, old.st_uid, old.st_gid) != 0 && errno != EPERM && errno != EINVAL) {
      Fail();
    }
  }

  std::string name;
  Descriptor file;
};

}  // namespace

void OutputFile::Write(std::string_view text) const {
  std::string outcome = "' was not written: ";
  try {
    const std::optional<struct stat> old = RegularFile(path);
    const std::string meant = FileMeant(path);
    const std::string folderName = FolderOf(meant);
    if (folderName == meant) {
      Fail(ENOENT);  // no name behind the folder's
    }
    const Descriptor folder(Checked([&folderName] {
      return ::open(folderName.empty() ? "." : folderName.c_str(),
                    O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    }));
    const SignalsHeld held;
    Temporary temporary(folderName);
    temporary.Fill(text, old);
    temporary.TakeThePlaceOf(meant);
    outcome = "' was written, but may not outlast a power cut: ";
    Checked([&folder] {
      const int result = ::fsync(folder);
      return result != 0 && errno == EINVAL ? 0 : result;  // this file system syncs no folders
    });
  } catch (const std::system_error& error) {
    throw OutputError("'" + path + outcome + error.code().message());
  }
}

}  // namespace fuelgauge
