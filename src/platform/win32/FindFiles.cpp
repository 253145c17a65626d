// Directories of Windows, read in the large blocks that servers answer fastest.
#include "platform/FindFiles.h"

#include "platform/win32/LongPathForm.h"
#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

FINDEX_INFO_LEVELS Level(ShortNames shortNames) {
  return shortNames == ShortNames::Read ? FindExInfoStandard : FindExInfoBasic;
}

std::uint64_t TicksOf(const FILETIME& time) {
  return std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime;
}

void Fill(const WIN32_FIND_DATAW& found, FindData& data) {
  data.Attributes = found.dwFileAttributes;
  data.LastWrite = TicksOf(found.ftLastWriteTime);
  data.Created = TicksOf(found.ftCreationTime);
  data.LastAccess = TicksOf(found.ftLastAccessTime);
  data.ReparseTag = data.IsLink() ? found.dwReserved0 : 0;
  data.Size = data.IsDirectory() ? 0 : std::uint64_t{found.nFileSizeHigh} << 32 | found.nFileSizeLow;
}

bool IsDots(const wchar_t* name) {
  return name[0] == L'.' && (name[1] == L'\0' || (name[1] == L'.' && name[2] == L'\0'));
}

/// The root of an empty volume has not even "." and "..", and says "not found".
bool IsEmptyRoot(const std::wstring& directory, DWORD error) {
  const DWORD attributes = error == ERROR_FILE_NOT_FOUND || error == ERROR_NO_MORE_FILES
                               ? GetFileAttributesW(directory.c_str())
                               : INVALID_FILE_ATTRIBUTES;
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

struct FindFiles::State {
  OwnedFind Handle;
  WIN32_FIND_DATAW Found;
  bool Waiting = false;  ///< `Found` holds an entry that was not handed out yet
  bool Opened = false;
  bool Failed = false;
  DWORD Error = ERROR_SUCCESS;  ///< of the failure to open, or to go on
};

FindFiles::FindFiles(std::wstring_view directory, ShortNames shortNames) : state_(std::make_unique<State>()) {
  std::wstring pattern = LongPathForm(directory);
  if (!pattern.ends_with(L'\\')) {
    pattern += L'\\';
  }
  pattern += L'*';
  state_->Handle = OwnedFind(FindFirstFileExW(pattern.c_str(), Level(shortNames), &state_->Found, FindExSearchNameMatch,
                                              nullptr, FIND_FIRST_EX_LARGE_FETCH));
  const DWORD error = GetLastError();
  state_->Waiting = state_->Handle.IsOpen();
  pattern.pop_back();
  state_->Opened = state_->Waiting || IsEmptyRoot(pattern, error);
  state_->Error = state_->Opened ? ERROR_SUCCESS : error;
}

FindFiles::~FindFiles() = default;

bool FindFiles::Opened() const {
  return state_->Opened;
}

bool FindFiles::Failed() const {
  return state_->Failed;
}

SystemReason FindFiles::Reason() const {
  return {state_->Error, SystemText(state_->Error)};
}

bool FindFiles::Denied() const {
  return state_->Error == ERROR_ACCESS_DENIED;
}

bool FindFiles::Next(FindData& data) {
  State& state = *state_;
  do {
    if (!state.Handle.IsOpen()) {
      return false;
    }
    if (!state.Waiting && !FindNextFileW(state.Handle.Get(), &state.Found)) {
      state.Error = GetLastError();
      state.Failed = state.Error != ERROR_NO_MORE_FILES;
      state.Handle = OwnedFind();
      return false;
    }
    state.Waiting = false;
  } while (IsDots(state.Found.cFileName));
  Fill(state.Found, data);
  data.Name = state.Found.cFileName;
  data.AlternateName = state.Found.cAlternateFileName;
  return true;
}

std::optional<FoundEntry> FindEntry(std::wstring_view path) {
  const std::wstring_view name = path.substr(path.find_last_of(L"\\/:") + 1);
  if (name.empty() || name == L"." || name == L".." || name.find_first_of(L"*?<>\"") != name.npos) {
    return std::nullopt;
  }
  WIN32_FIND_DATAW found;
  OwnedFind handle(
      FindFirstFileExW(EntryPathForm(path).c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr, 0));
  if (!handle.IsOpen()) {  // typed with a dot or blank at its end that the name on disk has not
    handle = OwnedFind(
        FindFirstFileExW(std::wstring(path).c_str(), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr, 0));
  }
  if (!handle.IsOpen()) {
    return std::nullopt;
  }
  FoundEntry entry;
  Fill(found, entry.Data);
  entry.Name = found.cFileName;
  return entry;
}

std::optional<FileIdentity> IdentityOf(std::wstring_view directory) {
  const OwnedFile file(CreateFileW(LongPathForm(directory).c_str(), FILE_READ_ATTRIBUTES,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!file.IsOpen() || !GetFileInformationByHandle(file.Get(), &information)) {
    return std::nullopt;
  }
  return FileIdentity{information.dwVolumeSerialNumber,
                      std::uint64_t{information.nFileIndexHigh} << 32 | information.nFileIndexLow};
}

}  // namespace folivant::platform
