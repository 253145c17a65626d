#include "platform/FindFiles.h"

#include <cwchar>

#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

bool IsDotEntry(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == 0 || (name[1] == L'.' && name[2] == 0));
}

void Fill(const WIN32_FIND_DATAW& found, FindData& data) {
  data.Attributes = found.dwFileAttributes;
  data.LastWrite = std::uint64_t{found.ftLastWriteTime.dwHighDateTime} << 32 | found.ftLastWriteTime.dwLowDateTime;
  const bool directory = data.IsDirectory();
  data.SizeHigh = directory ? 0 : found.nFileSizeHigh;
  data.SizeLow = directory ? 0 : found.nFileSizeLow;
}

}  // namespace

struct FindFiles::State {
  WIN32_FIND_DATAW Found;
  OwnedFind Handle;
  bool Empty = false;    // opened, but nothing in it: the root of an empty drive
  bool Pending = false;  // Found holds an entry that Next has not given out
  bool Failed = false;
};

FindFiles::FindFiles(std::wstring_view directory, ShortNames shortNames) : state_(new State) {
  std::wstring pattern(directory);
  if (!pattern.ends_with(L'\\')) {
    pattern += L'\\';
  }
  pattern += L"*.*";
  // The basic level leaves the 8.3 names out; the large fetch (Windows 7 and later) halves the calls.
  const FINDEX_INFO_LEVELS level = shortNames == ShortNames::Skip ? FindExInfoBasic : FindExInfoStandard;
  state_->Handle = OwnedFind(FindFirstFileExW(LongSpelling(pattern).c_str(), level, &state_->Found,
                                              FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH));
  const DWORD error = GetLastError();
  state_->Pending = state_->Handle.IsOpen();
  state_->Empty = !state_->Pending && error == ERROR_FILE_NOT_FOUND && IdentityOf(directory).has_value();
}

FindFiles::~FindFiles() = default;

bool FindFiles::Opened() const {
  return state_->Handle.IsOpen() || state_->Empty;
}
bool FindFiles::Failed() const {
  return state_->Failed;
}

bool FindFiles::Next(FindData& data) {
  while (state_->Handle.IsOpen()) {
    if (!state_->Pending && FindNextFileW(state_->Handle.Get(), &state_->Found) == 0) {
      state_->Failed = GetLastError() != ERROR_NO_MORE_FILES;
      return false;
    }
    state_->Pending = false;
    const WIN32_FIND_DATAW& found = state_->Found;
    if (!IsDotEntry(found.cFileName)) {
      Fill(found, data);
      data.Name = found.cFileName;
      data.AlternateName = found.cAlternateFileName;
      return true;
    }
  }
  return false;
}

std::optional<FoundEntry> FindEntry(std::wstring_view path) {
  if (path.empty() || path.ends_with(L'\\') || path.find_first_of(L"*?") != path.npos) {
    return std::nullopt;
  }
  WIN32_FIND_DATAW found;
  const OwnedFind handle(
      FindFirstFileExW(LongSpelling(path).c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr, 0));
  if (!handle.IsOpen()) {
    return std::nullopt;
  }
  FoundEntry entry;
  Fill(found, entry.Data);
  entry.Name = found.cFileName;
  return entry;
}

std::optional<FileIdentity> IdentityOf(std::wstring_view directory) {
  const OwnedFile opened(CreateFileW(LongSpelling(directory).c_str(), FILE_READ_ATTRIBUTES,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!opened.IsOpen() || GetFileInformationByHandle(opened.Get(), &information) == 0) {
    return std::nullopt;
  }
  return FileIdentity{information.dwVolumeSerialNumber,
                      std::uint64_t{information.nFileIndexHigh} << 32 | information.nFileIndexLow};
}

}  // namespace folivant::platform
