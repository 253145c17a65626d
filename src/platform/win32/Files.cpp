// Files and folders of Windows. Replacing a file goes through a new one beside it, so that a failure loses nothing.
#include "platform/Files.h"

#include <shlobj.h>

#include <array>
#include <vector>

#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WriteAll.h"

namespace folivant::platform {
namespace {

std::wstring WithBackslash(std::wstring_view path) {
  return std::wstring(path) + (path.ends_with(L'\\') ? L"" : L"\\");
}

DWORD AttributesOf(std::wstring_view path) {
  return GetFileAttributesW(LongPathForm(path).c_str());
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

/// The access list of a file, as a descriptor that holds nothing else; empty where the file system has none or hides
/// it.
std::vector<BYTE> AccessListOf(const std::wstring& native) {
  DWORD size = 0;
  GetFileSecurityW(native.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<BYTE> list(size);
  const bool known =
      size > 0 && GetFileSecurityW(native.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size) != FALSE;
  return known ? list : std::vector<BYTE>();
}

/// Where it fails (a share that grants no such right, a file system without lists) the file has what its folder gives
/// it.
void SetAccessList(const std::wstring& native, std::vector<BYTE> list) {
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  if (list.empty() || !GetSecurityDescriptorControl(list.data(), &control, &revision)) {
    return;
  }
  if ((control & SE_DACL_AUTO_INHERITED) != 0) {  // inherited entries stay inherited only when that is asked for
    SetSecurityDescriptorControl(list.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
  }
  SetFileSecurityW(native.c_str(), DACL_SECURITY_INFORMATION, list.data());
}

/// A new file beside `path`, with the attributes and the access list of the file there, that is removed unless it is
/// moved over it. Not by ReplaceFileW: as its errors 1176 and 1177 tell, that moves the old file out of the way first,
/// so a failure in between leaves neither content there.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::wstring& path) : path_(path) {
    const DWORD attributes = AttributesOf(path);
    replaces_ = attributes != INVALID_FILE_ATTRIBUTES;
    if (replaces_ && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
      throw SystemError(FailedAction::WriteFile, path_, ERROR_ACCESS_DENIED);
    }
    Create(replaces_ ? attributes & kKept : 0);
    if (replaces_) {
      SetAccessList(LongPathForm(name_), AccessListOf(LongPathForm(path)));
    }
  }
  ~TemporaryFile() {
    if (removes_) {  // by the handle, because the access list may forbid it by name
      FILE_DISPOSITION_INFO removed{TRUE};
      SetFileInformationByHandle(file_.Get(), FileDispositionInfo, &removed, sizeof removed);
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
    if (!Move()) {
      const DWORD error = GetLastError();
      // File systems without a journal remove the old file first; then the new content is all that is left.
      removes_ = !replaces_ || PathExists(path_);
      if (removes_ || !Move()) {
        throw SystemError(FailedAction::WriteFile, path_, error);
      }
    }
    removes_ = false;
  }

 private:
  static constexpr DWORD kKept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                 FILE_ATTRIBUTE_NOT_CONTENT_INDEXED | FILE_ATTRIBUTE_ENCRYPTED;

  bool Move() const {
    return MoveFileExW(LongPathForm(name_).c_str(), LongPathForm(path_).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
  }

  /// The name has nothing of the target's: longer than that it might be too long.
  void Create(DWORD attributes) {
    const std::wstring folder = path_.substr(0, path_.rfind(L'\\') + 1);
    for (int i = 0; !file_.IsOpen(); ++i) {
      name_ = folder + L"~fv" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(i) + L".tmp";
      file_ = OwnedFile(CreateFileW(LongPathForm(name_).c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_DELETE, nullptr,
                                    CREATE_NEW, attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes, nullptr));
      const DWORD error = GetLastError();
      if (!file_.IsOpen() && error != ERROR_FILE_EXISTS) {
        throw SystemError(FailedAction::WriteFile, path_, error);
      }
    }
  }

  std::wstring path_;
  std::wstring name_;
  OwnedFile file_;
  bool replaces_ = false;
  bool removes_ = true;  ///< at the end
};

}  // namespace

void ReplaceFile(const std::wstring& path, std::string_view bytes) {
  TemporaryFile file(AbsolutePath(path));
  file.Write(bytes);
  file.MoveOverTarget();
}

bool TruncateFile(const std::wstring& path) {
  // CREATE_ALWAYS would refuse a hidden file
  const OwnedFile file(CreateFileW(LongPathForm(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
  return file.IsOpen() && SetEndOfFile(file.Get());
}

bool RemoveFile(const std::wstring& path) {
  return DeleteFileW(LongPathForm(path).c_str()) != 0;
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
  if (!GetDiskFreeSpaceExW(WithBackslash(LongPathForm(directory)).c_str(), nullptr, &total, &totalFree)) {
    return std::nullopt;
  }
  return DiskSpace{totalFree.QuadPart, total.QuadPart};
}

}  // namespace folivant::platform
