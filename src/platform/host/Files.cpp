// Files and folders of the host, under their Windows names.
#include "platform/Files.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "platform/Utf8.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {
namespace {

Descriptor Open(const HostPath& place, int flags, mode_t mode = 0) {
  return Descriptor(openat(place.Directory(), place.Name(), flags | O_CLOEXEC, mode));
}

std::optional<struct stat> StatusOf(std::wstring_view path) {
  const HostPath place = Locate(path);
  struct stat status;
  if (fstatat(place.Directory(), place.Name(), &status, 0) != 0) {
    return std::nullopt;
  }
  return status;
}

/// A new file beside `target`, with the mode and, where that is allowed, the owner of the file there, that is removed
/// unless it is moved over it.
class TemporaryFile {
 public:
  TemporaryFile(const HostPath& target, const std::wstring& path) : target_(target), path_(path) {
    struct stat status;
    const bool replaces = fstatat(target.Directory(), target.Name(), &status, 0) == 0;
    if (replaces && !IsWritable(status)) {
      errno = EACCES;
      throw SystemError(FailedAction::WriteFile, path_);
    }
    Create(replaces ? 0600 : 0666);
    if (replaces) {
      const bool keptOwner = fchown(file_.Get(), status.st_uid, status.st_gid) == 0;
      fchmod(file_.Get(), status.st_mode & (keptOwner ? 07777 : 0777));
    }
  }
  ~TemporaryFile() {
    if (!moved_) {
      unlinkat(target_.Directory(), name_.c_str(), 0);
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  void Write(std::string_view bytes) {
    if (!WriteAll(file_.Get(), bytes) || fsync(file_.Get()) != 0) {
      throw SystemError(FailedAction::WriteFile, path_);
    }
  }
  void MoveOverTarget() {
    moved_ = renameat(target_.Directory(), name_.c_str(), target_.Directory(), target_.Name()) == 0;
    if (!moved_) {
      throw SystemError(FailedAction::WriteFile, path_);
    }
  }

 private:
  /// The name has nothing of the target's: longer than that it might be too long.
  void Create(mode_t mode) {
    const std::string name = target_.Name();
    const std::string folder = name.substr(0, name.rfind('/') + 1);
    for (int i = 0; !file_; ++i) {
      name_ = folder + "~fv" + std::to_string(getpid()) + "-" + std::to_string(i) + ".tmp";
      file_ = Descriptor(openat(target_.Directory(), name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
      if (!file_ && errno != EEXIST) {
        throw SystemError(FailedAction::WriteFile, path_);
      }
    }
  }

  const HostPath& target_;
  std::wstring path_;
  std::string name_;
  Descriptor file_;
  bool moved_ = false;
};

}  // namespace

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  const std::wstring full = AbsolutePath(path);
  const HostPath target = Locate(full);
  TemporaryFile file(target, full);
  file.Write(bytes);
  file.MoveOverTarget();
}

bool TruncateFile(const std::wstring& path) {
  return static_cast<bool>(Open(Locate(path), O_WRONLY | O_CREAT | O_TRUNC, 0666));
}

bool RemoveFile(const std::wstring& path) {
  const HostPath place = Locate(path);
  return unlinkat(place.Directory(), place.Name(), 0) == 0;
}

bool PathExists(std::wstring_view path) {
  return StatusOf(path).has_value();
}

bool IsDirectory(std::wstring_view path) {
  const auto status = StatusOf(path);
  return status && S_ISDIR(status->st_mode);
}

std::wstring CurrentDirectory() {
  const std::unique_ptr<char, void (*)(void*)> directory(getcwd(nullptr, 0), std::free);
  return directory ? FromHostPath(directory.get()) : L"Z:\\";
}

std::wstring AbsolutePath(const std::wstring& path) {
  const bool absolute = path.starts_with(L"\\\\") || (path.size() >= 3 && path.compare(1, 2, L":\\") == 0);
  if (absolute || path.empty()) {
    return path;
  }
  const std::string bytes = HostBytes(path);
  if (bytes.empty()) {
    return path;
  }
  std::string full = bytes.front() == '/' ? bytes : HostBytes(CurrentDirectory()) + "/" + bytes;
  full = std::filesystem::path(full).lexically_normal();
  return FromHostPath(full);
}

std::wstring TemporaryDirectory() {
  const char* named = std::getenv("TMPDIR");
  return FromHostPath(named != nullptr && named[0] == '/' ? named : "/tmp");
}

std::wstring ProgramFolder() {
  std::string file(PATH_MAX, '\0');
  const ssize_t length = readlink("/proc/self/exe", file.data(), file.size());
  file.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return FromHostPath(file.substr(0, file.rfind('/')));
}

std::optional<std::wstring> SendToFolder() {
  const char* folder = std::getenv("FOLIVANT_SENDTO");
  if (folder == nullptr || folder[0] == '\0') {
    return std::nullopt;
  }
  return folder[0] == '/' ? FromHostPath(folder) : FromUtf8(folder);
}

std::wstring VolumeLabel(const std::wstring&) {
  return {};
}

std::optional<DiskSpace> FreeSpace(const std::wstring& directory) {
  const HostPath place = Locate(directory);
  const Descriptor opened(openat(place.Directory(), place.Name(), O_PATH | O_CLOEXEC));
  struct statvfs status;
  if (!opened || fstatvfs(opened.Get(), &status) != 0) {
    return std::nullopt;
  }
  // Free is what this user may still fill, as Wine reports it, not what is reserved for root.
  return DiskSpace{std::uint64_t{status.f_bavail} * status.f_frsize, std::uint64_t{status.f_blocks} * status.f_frsize};
}

}  // namespace folivant::platform
