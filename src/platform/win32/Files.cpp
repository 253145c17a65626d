#include "platform/Files.h"

#include <shlobj.h>

#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool WriteAndFlush(const std::wstring& path, std::string_view bytes) {
  const OwnedFile file(
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  return file.IsOpen() &&
         WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
         written == bytes.size() && FlushFileBuffers(file.Get()) != 0;
}

}  // namespace

std::string ReadWholeFile(const std::wstring& path) {
  const OwnedFile file(CreateFileW(LongSpelling(path).c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  DWORD error = GetLastError();
  if (!file.IsOpen()) {
    throw SystemError(FailedAction::ReadFile, path, error);
  }
  std::string bytes;
  LARGE_INTEGER size;
  if (GetFileSizeEx(file.Get(), &size) != 0) {
    bytes.reserve(static_cast<std::size_t>(size.QuadPart));
  }
  std::string block(64 * 1024, '\0');
  for (;;) {
    DWORD count = 0;
    const BOOL done = ReadFile(file.Get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr);
    error = GetLastError();
    if (done == 0) {
      throw SystemError(FailedAction::ReadFile, path, error);
    }
    if (count == 0) {
      return bytes;
    }
    bytes.append(block, 0, count);
  }
}

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  const std::wstring target = LongSpelling(AbsolutePath(path));
  const std::wstring temporary = target + L".new" + std::to_wstring(GetCurrentProcessId());
  if (WriteAndFlush(temporary, bytes) &&
      MoveFileExW(temporary.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
    return;
  }
  const DWORD error = GetLastError();
  DeleteFileW(temporary.c_str());
  throw SystemError(FailedAction::WriteFile, path, error);
}

bool TruncateFile(const std::wstring& path) {
  return OwnedFile(CreateFileW(LongSpelling(path).c_str(), GENERIC_WRITE, kShareAll, nullptr, CREATE_ALWAYS,
                               FILE_ATTRIBUTE_NORMAL, nullptr))
      .IsOpen();
}

bool RemoveFile(const std::wstring& path) {
  return DeleteFileW(LongSpelling(path).c_str()) != 0;
}

bool PathExists(std::wstring_view path) {
  return GetFileAttributesW(LongSpelling(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool IsDirectory(std::wstring_view path) {
  const DWORD attributes = GetFileAttributesW(LongSpelling(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring CurrentDirectory() {
  std::wstring path(GetCurrentDirectoryW(0, nullptr), L'\0');
  path.resize(GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
  return path;
}

std::wstring AbsolutePath(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full.empty() ? path : full;
}

std::wstring TemporaryDirectory() {
  wchar_t path[MAX_PATH + 1];
  return {path, GetTempPathW(static_cast<DWORD>(std::size(path)), path)};
}

std::wstring ProgramFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  while (length == path.size()) {
    path.resize(path.size() * 2);
    length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  }
  path.resize(length);
  return path.substr(0, path.rfind(L'\\'));
}

std::optional<std::wstring> SendToFolder() {
  wchar_t path[MAX_PATH];
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_SENDTO, nullptr, SHGFP_TYPE_CURRENT, path))) {
    return std::nullopt;
  }
  return path;
}

std::vector<std::wstring> FindNames(const std::wstring& folder, const std::wstring& pattern) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found;
  const OwnedFind handle(FindFirstFileW(LongSpelling(folder + L'\\' + pattern).c_str(), &found));
  if (handle.IsOpen()) {
    do {
      if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        names.emplace_back(found.cFileName);
      }
    } while (FindNextFileW(handle.Get(), &found) != 0);
  }
  return names;
}

std::wstring VolumeLabel(const std::wstring& root) {
  wchar_t label[MAX_PATH + 1] = L"";
  const BOOL known = GetVolumeInformationW(root.c_str(), label, static_cast<DWORD>(std::size(label)), nullptr, nullptr,
                                           nullptr, nullptr, 0);
  return known != 0 ? label : L"";
}

std::optional<DiskSpace> FreeSpace(const std::wstring& directory) {
  ULARGE_INTEGER available;
  ULARGE_INTEGER total;
  ULARGE_INTEGER totalFree;
  if (GetDiskFreeSpaceExW(LongSpelling(directory).c_str(), &available, &total, &totalFree) == 0) {
    return std::nullopt;
  }
  return DiskSpace{totalFree.QuadPart, total.QuadPart};
}

}  // namespace folivant::platform
