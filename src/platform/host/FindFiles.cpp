// Directories of the host, told as Wine tells them, so that both builds list the same.
#include "platform/FindFiles.h"

#include <dirent.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <vector>

#include "platform/Utf8.h"
#include "platform/host/Host.h"
#include "platform/host/HostPath.h"

namespace folivant::platform {
namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;
constexpr std::size_t kLongestName = 1024;  ///< bytes; this system allows 255, foreign volumes some more

using Block = std::vector<char>;

/// Enumerations follow each other by the thousand: the last one's buffer serves the next.
Block& SpareBlock() {
  static Block block;
  return block;
}

Block TakeBlock() {
  Block block = std::move(SpareBlock());
  SpareBlock().clear();
  block.resize(kBlockBytes);
  return block;
}

/// The layout of the kernel's directory records.
struct Record {
  std::uint64_t Inode;
  std::int64_t Offset;
  std::uint16_t Length;
  std::uint8_t Type;
  char Name[1];
};

bool IsDots(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

std::uint64_t FileTime(const timespec& time) {
  constexpr std::int64_t kSecondsTo1970 = 11'644'473'600;
  constexpr std::int64_t kLastSecond = 900'000'000'000;  // what a file time can hold
  const std::int64_t seconds = std::clamp<std::int64_t>(time.tv_sec, -kSecondsTo1970, kLastSecond);
  return static_cast<std::uint64_t>((seconds + kSecondsTo1970) * 10'000'000 + time.tv_nsec / 100);
}

/// As Wine reports the entries of this system, from the status that a link leads to: links to directories and volumes
/// mounted in the folder are reparse points.
void Fill(const struct stat& status, const char* name, bool link, dev_t parentDevice, FindData& data) {
  const bool directory = S_ISDIR(status.st_mode);
  data.Attributes = directory ? kDirectory : kArchive;
  if (!IsWritable(status)) {
    data.Attributes |= kReadOnly;
  }
  if (name[0] == '.') {
    data.Attributes |= kHidden;
  }
  if (directory && (link || status.st_dev != parentDevice)) {
    data.Attributes |= kLink;
  }
  data.Size = directory ? 0 : static_cast<std::uint64_t>(status.st_size);
  data.LastWrite = FileTime(status.st_mtim);
  data.Created = data.LastWrite;  // Wine has no other, either
  data.LastAccess = FileTime(status.st_atim);
}

bool IsLinkEntry(int directory, const char* name, unsigned type) {
  struct stat status;
  return type == DT_LNK ||
         (type == DT_UNKNOWN && fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode));
}

Descriptor OpenDirectory(std::wstring_view path, int flags) {
  flags |= O_DIRECTORY | O_CLOEXEC;
  const std::string bytes = HostBytes(path);
  Descriptor directory(open(bytes.c_str(), flags));
  if (!directory && (errno == ENOENT || errno == ENAMETOOLONG)) {
    const HostPath place = Locate(path);
    directory = Descriptor(openat(place.Directory(), place.Name(), flags));
  }
  return directory;
}

}  // namespace

struct FindFiles::State {
  Descriptor Directory;
  dev_t Device = 0;
  bool Failed = false;
  int Error = 0;  ///< of the failure to open, or to go on
  Block Records;
  std::size_t At = 0;
  std::size_t End = 0;
  std::array<wchar_t, kLongestName> Name;

  const Record* NextRecord() {
    if (At == End && !ReadBlock()) {
      return nullptr;
    }
    const Record* record = reinterpret_cast<const Record*>(Records.data() + At);
    At += record->Length;
    return record;
  }
  bool ReadBlock() {
    const long read = syscall(SYS_getdents64, Directory.Get(), Records.data(), Records.size());
    Failed = read < 0;
    Error = Failed ? errno : 0;
    At = 0;
    End = read > 0 ? static_cast<std::size_t>(read) : 0;
    return read > 0;
  }
};

FindFiles::FindFiles(std::wstring_view directory, ShortNames) : state_(new State) {
  state_->Directory = OpenDirectory(directory, O_RDONLY);
  state_->Error = state_->Directory ? 0 : errno;
  struct stat status;
  if (state_->Directory && fstat(state_->Directory.Get(), &status) == 0) {
    state_->Device = status.st_dev;
    state_->Records = TakeBlock();
  }
}

FindFiles::~FindFiles() {
  SpareBlock() = std::move(state_->Records);
}

bool FindFiles::Opened() const {
  return static_cast<bool>(state_->Directory);
}

bool FindFiles::Failed() const {
  return state_->Failed;
}

SystemReason FindFiles::Reason() const {
  return ReasonFor(state_->Error);
}

bool FindFiles::Denied() const {
  return state_->Error == EACCES || state_->Error == EPERM;
}

bool FindFiles::Next(FindData& data) {
  State& state = *state_;
  if (!state.Directory || state.Failed) {
    return false;
  }
  while (const Record* record = state.NextRecord()) {
    const char* name = record->Name;
    struct stat status;
    // a name that is gone by now and a link that leads nowhere are not seen
    if (IsDots(name) || fstatat(state.Directory.Get(), name, &status, 0) != 0) {
      continue;
    }
    const bool link = S_ISDIR(status.st_mode) && IsLinkEntry(state.Directory.Get(), name, record->Type);
    Fill(status, name, link, state.Device, data);
    const std::string_view bytes = std::string_view(name).substr(0, kLongestName);
    data.Name = std::wstring_view(state.Name.data(), FromUtf8Into(bytes, state.Name.data()));
    data.AlternateName = {};
    return true;
  }
  return false;
}

std::optional<FoundEntry> FindEntry(std::wstring_view path) {
  const std::wstring_view last = path.substr(path.find_last_of(L"\\/:") + 1);
  if (last.empty() || last == L"." || last == L"..") {
    return std::nullopt;
  }
  const HostPath place = Locate(path);
  struct stat status;
  struct stat itself;
  if (fstatat(place.Directory(), place.Name(), &status, 0) != 0 ||
      fstatat(place.Directory(), place.Name(), &itself, AT_SYMLINK_NOFOLLOW) != 0) {
    return std::nullopt;
  }
  const std::string whole = place.Name();
  const std::size_t start = whole.rfind('/') + 1;
  const std::string parent = whole.substr(0, start) + ".";
  struct stat parentStatus = status;
  fstatat(place.Directory(), parent.c_str(), &parentStatus, 0);
  FoundEntry entry;
  Fill(status, whole.c_str() + start, S_ISLNK(itself.st_mode), parentStatus.st_dev, entry.Data);
  entry.Name = FromUtf8(std::string_view(whole).substr(start));
  return entry;
}

std::optional<FileIdentity> IdentityOf(std::wstring_view directory) {
  const Descriptor opened = OpenDirectory(directory, O_PATH);
  struct stat status;
  if (!opened || fstat(opened.Get(), &status) != 0) {
    return std::nullopt;
  }
  return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace folivant::platform
