#include "platform/Files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/FindFiles.h"
#include "platform/Text.h"
#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool WriteAndFlush(const std::string& path, std::string_view bytes) {
  File file(std::fopen(path.c_str(), "wbe"));
  const bool written = file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                       std::fflush(file.get()) == 0 && fsync(fileno(file.get())) == 0;
  return written && std::fclose(file.release()) == 0;
}

}  // namespace

std::string ReadWholeFile(const std::wstring& path) {
  const File file(std::fopen(ToNativePath(path).c_str(), "rbe"));
  if (!file) {
    throw SystemError(FailedAction::ReadFile, path);
  }
  std::string bytes;
  char block[64 * 1024];
  while (const std::size_t count = std::fread(block, 1, sizeof block, file.get())) {
    bytes.append(block, count);
  }
  if (std::ferror(file.get()) != 0) {
    throw SystemError(FailedAction::ReadFile, path);
  }
  return bytes;
}

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  const std::string native = ToNativePath(path);
  const std::string temporary = native + ".new" + std::to_string(getpid());
  if (WriteAndFlush(temporary, bytes) && rename(temporary.c_str(), native.c_str()) == 0) {
    return;
  }
  const RuntimeError error = SystemError(FailedAction::WriteFile, path);
  unlink(temporary.c_str());
  throw error;
}

bool TruncateFile(const std::wstring& path) {
  return File(std::fopen(ToNativePath(path).c_str(), "wbe")) != nullptr;
}

bool RemoveFile(const std::wstring& path) {
  return unlink(ToNativePath(path).c_str()) == 0;
}

bool PathExists(std::wstring_view path) {
  struct stat status {};
  return stat(ToNativePath(path).c_str(), &status) == 0;
}

bool IsDirectory(std::wstring_view path) {
  struct stat status {};
  return stat(ToNativePath(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::wstring CurrentDirectory() {
  char path[PATH_MAX];
  return FromNativePath(getcwd(path, sizeof path) == nullptr ? "/" : path);
}

std::wstring AbsolutePath(const std::wstring& path) {
  if (path.starts_with(L"\\\\") || (path.size() >= 2 && path[1] == L':')) {
    return path;
  }
  if (path.starts_with(L'\\')) {
    return L"Z:" + path;
  }
  const std::wstring current = CurrentDirectory();
  return current + (current.ends_with(L'\\') ? L"" : L"\\") + path;
}

std::wstring TemporaryDirectory() {
  const char* const folder = std::getenv("TMPDIR");
  return FromNativePath(folder != nullptr && *folder != 0 ? folder : "/tmp");
}

std::wstring ProgramFolder() {
  char path[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
  const std::string program(path, length < 0 ? 0 : static_cast<std::size_t>(length));
  return FromNativePath(program.substr(0, program.rfind('/')));
}

std::optional<std::wstring> SendToFolder() {
  const char* const folder = std::getenv("FOLIVANT_SENDTO");
  return folder == nullptr ? std::nullopt : std::optional(FromNativePath(folder));
}

std::vector<std::wstring> FindNames(const std::wstring& folder, const std::wstring& pattern) {
  const std::wstring extension = ToLower(pattern.substr(1));  // every pattern of this program is "*.something"
  std::vector<std::wstring> names;
  FindFiles files(folder, ShortNames::Skip);
  for (FindData data; files.Opened() && files.Next(data);) {
    if (!data.IsDirectory() && ToLower(data.Name).ends_with(extension)) {
      names.emplace_back(data.Name);
    }
  }
  return names;
}

std::wstring VolumeLabel(const std::wstring&) {
  return {};
}

std::optional<DiskSpace> FreeSpace(const std::wstring& directory) {
  struct statvfs status {};
  if (statvfs(ToNativePath(directory).c_str(), &status) != 0) {
    return std::nullopt;
  }
  return DiskSpace{std::uint64_t{status.f_bavail} * status.f_frsize, std::uint64_t{status.f_blocks} * status.f_frsize};
}

}  // namespace folivant::platform
