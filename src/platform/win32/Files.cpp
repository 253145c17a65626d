#include "platform/Files.h"

#include <shlobj.h>

#include <array>

#include "platform/win32/NativePath.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WriteAll.h"

namespace folivant::platform {
namespace {

std::wstring WithBackslash(std::wstring_view path) {
  return std::wstring(path) + (path.ends_with(L'\\') ? L"" : L"\\");
}

DWORD AttributesOf(std::wstring_view path) {
  return GetFileAttributesW(NativePath(path).c_str());
}

/// Calls `fill(buffer, size)`, which answers the length that it wrote or the larger size that it needs.
template <class Fill>
std::wstring Filled(Fill fill) {
  std::wstring text(MAX_PATH, L'\0');
  DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
  while (length >= text.size()) {
    text.resize(length + std::size_t{1});
    length = fill(text.data(), static_cast<DWORD>(text.size()));
  }
  text.resize(length);
  return text;
}

/// A new file beside `path` that deletes itself unless it is moved over it.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::wstring& path) : path_(path) {
    for (int i = 0; !file_.IsOpen(); ++i) {
      name_ = path + L".~" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(i);
      file_ = OwnedFile(CreateFileW(NativePath(name_).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
      const DWORD error = GetLastError();
      if (!file_.IsOpen() && error != ERROR_FILE_EXISTS) {
        throw SystemError(FailedAction::WriteFile, path_, error);
      }
    }
  }
  ~TemporaryFile() {
    if (!moved_) {
      file_ = OwnedFile();
      DeleteFileW(NativePath(name_).c_str());
    }
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  void Write(std::string_view bytes) {
    WriteAll(file_.Get(), bytes, path_);
    if (!FlushFileBuffers(file_.Get())) {
      throw SystemError(FailedAction::WriteFile, path_, GetLastError());
    }
  }
  void MoveOverTarget() {
    file_ = OwnedFile();
    moved_ = MoveFileExW(NativePath(name_).c_str(), NativePath(path_).c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
    if (!moved_) {
      throw SystemError(FailedAction::WriteFile, path_, GetLastError());
    }
  }

 private:
  std::wstring path_;
  std::wstring name_;
  OwnedFile file_;
  bool moved_ = false;
};

}  // namespace

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  TemporaryFile file(AbsolutePath(path));
  file.Write(bytes);
  file.MoveOverTarget();
}

bool TruncateFile(const std::wstring& path) {
  // CREATE_ALWAYS would refuse a hidden file
  const OwnedFile file(CreateFileW(NativePath(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.IsOpen() && SetEndOfFile(file.Get());
}

bool RemoveFile(const std::wstring& path) {
  return DeleteFileW(NativePath(path).c_str()) != 0;
}

bool PathExists(std::wstring_view path) {
  return AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

bool IsDirectory(std::wstring_view path) {
  const DWORD attributes = AttributesOf(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::wstring CurrentDirectory() {
  std::wstring directory = Filled([](wchar_t* text, DWORD size) { return GetCurrentDirectoryW(size, text); });
  if (directory.size() > 3 && directory.ends_with(L'\\')) {
    directory.pop_back();
  }
  return directory;
}

std::wstring AbsolutePath(const std::wstring& path) {
  const bool absolute = path.starts_with(L"\\\\") || (path.size() >= 3 && path.compare(1, 2, L":\\") == 0);
  if (absolute || path.empty()) {
    return path;
  }
  return Filled([&](wchar_t* text, DWORD size) { return GetFullPathNameW(path.c_str(), size, text, nullptr); });
}

std::wstring TemporaryDirectory() {
  return Filled([](wchar_t* text, DWORD size) { return GetTempPathW(size, text); });
}

std::wstring ProgramFolder() {
  std::wstring file(MAX_PATH, L'\0');
  DWORD length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
  while (length == file.size()) {  // cut off: the function does not say how much it needs
    file.resize(2 * file.size());
    length = GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size()));
  }
  file.resize(length);
  return file.substr(0, file.rfind(L'\\'));
}

std::optional<std::wstring> SendToFolder() {
  std::array<wchar_t, MAX_PATH> folder;
  const bool known = SHGetFolderPathW(nullptr, CSIDL_SENDTO, nullptr, SHGFP_TYPE_CURRENT, folder.data()) == S_OK;
  return known ? std::optional<std::wstring>(folder.data()) : std::nullopt;
}

std::wstring VolumeLabel(const std::wstring& root) {
  std::array<wchar_t, MAX_PATH + 1> label;
  const bool known = GetVolumeInformationW(WithBackslash(root).c_str(), label.data(), static_cast<DWORD>(label.size()),
                                           nullptr, nullptr, nullptr, nullptr, 0) != 0;
  return known ? label.data() : L"";
}

std::optional<DiskSpace> FreeSpace(const std::wstring& directory) {
  ULARGE_INTEGER total;
  ULARGE_INTEGER totalFree;
  if (!GetDiskFreeSpaceExW(WithBackslash(NativePath(directory)).c_str(), nullptr, &total, &totalFree)) {
    return std::nullopt;
  }
  return DiskSpace{totalFree.QuadPart, total.QuadPart};
}

}  // namespace folivant::platform
