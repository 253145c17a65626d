#include "platform/host/HostPath.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <memory>

#include "platform/Text.h"
#include "platform/Utf8.h"

namespace folivant::platform {
namespace {

bool IsThere(int directory, const char* name) {
  struct stat status;
  return fstatat(directory, name, &status, 0) == 0;
}

/// The first name in `directory` that equals `name` but for letter case; `name` itself when there is none.
std::string NameOnDisk(int directory, const std::string& name) {
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(fdopendir(openat(directory, ".", O_RDONLY | O_DIRECTORY)),
                                                    closedir);
  const std::wstring wanted = ToLower(FromUtf8(name));
  while (const dirent* entry = entries ? readdir(entries.get()) : nullptr) {
    if (ToLower(FromUtf8(entry->d_name)) == wanted) {
      return entry->d_name;
    }
  }
  return name;
}

std::string ExactOrOnDisk(int directory, const std::string& name) {
  return name.empty() || IsThere(directory, name.c_str()) ? name : NameOnDisk(directory, name);
}

/// Goes down one component after the other.
HostPath Descend(std::string_view bytes) {
  Descriptor directory(openat(AT_FDCWD, bytes.starts_with('/') ? "/" : ".", O_PATH | O_DIRECTORY | O_CLOEXEC));
  for (;;) {
    bytes.remove_prefix(std::min(bytes.find_first_not_of('/'), bytes.size()));
    const std::size_t end = bytes.find('/');
    const std::string name = ExactOrOnDisk(directory.Get(), std::string(bytes.substr(0, end)));
    if (end == bytes.npos) {
      return HostPath(std::move(directory), name.empty() ? "." : name);
    }
    Descriptor next(openat(directory.Get(), name.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!next) {
      return HostPath(std::move(directory), std::string(bytes));
    }
    directory = std::move(next);
    bytes.remove_prefix(end);
  }
}

}  // namespace

std::string HostBytes(std::wstring_view path) {
  if (path.starts_with(L"\\\\?\\")) {
    path.remove_prefix(4);
  }
  const bool drive = path.size() >= 2 && path[1] == L':';
  if (path.starts_with(L"\\\\") || (drive && path[0] != L'Z' && path[0] != L'z')) {
    return {};
  }
  std::string bytes = ToUtf8(drive ? path.substr(2) : path);
  std::replace(bytes.begin(), bytes.end(), '\\', '/');
  return drive && bytes.empty() ? "." : bytes;
}

HostPath Locate(std::wstring_view path) {
  std::string bytes = HostBytes(path);
  if (bytes.empty() || (bytes.size() < PATH_MAX && IsThere(AT_FDCWD, bytes.c_str()))) {
    return HostPath(std::move(bytes));
  }
  return Descend(bytes);
}

}  // namespace folivant::platform
