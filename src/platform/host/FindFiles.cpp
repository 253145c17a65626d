#include "platform/FindFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>

#include "platform/host/Host.h"

namespace folivant::platform {
namespace {

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) {
      close(number_);
    }
  }
  int Get() const { return number_; }
  bool IsOpen() const { return number_ >= 0; }

 private:
  int number_;
};

constexpr int kOpenDirectory = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// Opens a directory by a path of any length: what exceeds one system call's limit is opened piece by piece.
Descriptor OpenDirectory(const std::string& path) {
  constexpr std::size_t kPiece = 4000;
  if (path.size() <= kPiece) {
    return Descriptor(open(path.c_str(), kOpenDirectory));
  }
  Descriptor current(open("/", kOpenDirectory));
  for (std::size_t start = path.find_first_not_of('/'); start != path.npos && current.IsOpen();) {
    std::size_t end = path.size();
    if (end - start > kPiece) {
      end = path.rfind('/', start + kPiece);
      if (end == path.npos || end <= start) {
        return Descriptor();
      }
    }
    const std::string piece = path.substr(start, end - start);
    current = Descriptor(openat(current.Get(), piece.c_str(), kOpenDirectory));
    start = path.find_first_not_of('/', end);
  }
  return current;
}

constexpr std::uint64_t kTicksPerSecond = 10'000'000;
constexpr std::int64_t kSecondsFrom1601 = 11'644'473'600;

std::uint64_t ToFileTime(const timespec& time) {
  const std::int64_t seconds = static_cast<std::int64_t>(time.tv_sec) + kSecondsFrom1601;
  return seconds < 0
             ? 0
             : static_cast<std::uint64_t>(seconds) * kTicksPerSecond + static_cast<std::uint64_t>(time.tv_nsec) / 100;
}

/// Attributes as Wine derives them from a file's name and mode.
void FillFromStatus(const struct stat& status, bool dotName, bool link, FindData& data) {
  const bool directory = S_ISDIR(status.st_mode);
  data.Attributes = directory ? kDirectory | (link ? kLink : 0) : kArchive;
  if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
    data.Attributes |= kReadOnly;
  }
  if (dotName) {
    data.Attributes |= kHidden;
  }
  data.LastWrite = ToFileTime(status.st_mtim);
  const std::uint64_t size = directory ? 0 : static_cast<std::uint64_t>(status.st_size);
  data.SizeHigh = static_cast<std::uint32_t>(size >> 32);
  data.SizeLow = static_cast<std::uint32_t>(size);
}

/// One record of getdents64.
struct DirectoryRecord {
  std::uint64_t Inode;
  std::int64_t Offset;
  std::uint16_t Length;
  std::uint8_t Type;
  char Name[1];
};

}  // namespace

struct FindFiles::State {
  Descriptor Directory;
  bool Failed = false;
  std::size_t Filled = 0;    // bytes in Buffer
  std::size_t Position = 0;  // of the next record in Buffer
  alignas(DirectoryRecord) std::array<char, 64 * 1024> Buffer;
  std::array<wchar_t, 256> Name;

  const DirectoryRecord* NextRecord() {
    if (Position >= Filled) {
      const long count = syscall(SYS_getdents64, Directory.Get(), Buffer.data(), Buffer.size());
      Failed = count < 0;
      if (count <= 0) {
        return nullptr;
      }
      Filled = static_cast<std::size_t>(count);
      Position = 0;
    }
    const auto* record = reinterpret_cast<const DirectoryRecord*>(Buffer.data() + Position);
    Position += record->Length;
    return record;
  }
};

namespace {

/// One buffer is kept between directories: a fresh one costs page faults for every directory of a walk.
template <class State>
std::unique_ptr<State>& SpareState() {
  thread_local std::unique_ptr<State> spare;
  return spare;
}

bool IsDotEntry(const char* name) {
  return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

}  // namespace

FindFiles::FindFiles(std::wstring_view directory, ShortNames) : state_(std::move(SpareState<State>())) {
  if (!state_) {
    state_.reset(new State);  // not make_unique: it would clear the buffer
  }
  state_->Directory = OpenDirectory(ToNativePath(directory));
  state_->Failed = false;
  state_->Filled = state_->Position = 0;
}

FindFiles::~FindFiles() {
  state_->Directory = Descriptor();
  SpareState<State>() = std::move(state_);
}

bool FindFiles::Opened() const {
  return state_->Directory.IsOpen();
}
bool FindFiles::Failed() const {
  return state_->Failed;
}

bool FindFiles::Next(FindData& data) {
  while (const DirectoryRecord* record = state_->NextRecord()) {
    const char* const name = record->Name;
    if (IsDotEntry(name)) {
      continue;
    }
    struct stat status;
    bool link = record->Type == DT_LNK;
    if (record->Type == DT_UNKNOWN && fstatat(state_->Directory.Get(), name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
      link = S_ISLNK(status.st_mode);
    }
    if (fstatat(state_->Directory.Get(), name, &status, 0) != 0) {
      continue;  // a broken link, or an entry that vanished meanwhile
    }
    FillFromStatus(status, name[0] == '.', link, data);
    const std::size_t length = FromUtf8Into({name, std::strlen(name)}, state_->Name.data());
    data.Name = {state_->Name.data(), length};
    data.AlternateName = {};
    return true;
  }
  return false;
}

std::optional<FoundEntry> FindEntry(std::wstring_view path) {
  const std::string native = ToNativePath(path);
  const std::string name = native.substr(native.rfind('/') + 1);
  struct stat status {};
  if (name.empty() || name == "." || name == ".." || stat(native.c_str(), &status) != 0) {
    return std::nullopt;
  }
  struct stat self {};
  const bool link = lstat(native.c_str(), &self) == 0 && S_ISLNK(self.st_mode);
  FoundEntry found;
  FillFromStatus(status, name[0] == '.', link, found.Data);
  found.Name = FromUtf8(name);
  return found;
}

std::optional<FileIdentity> IdentityOf(std::wstring_view directory) {
  const Descriptor opened = OpenDirectory(ToNativePath(directory));
  struct stat status {};
  if (!opened.IsOpen() || fstat(opened.Get(), &status) != 0) {
    return std::nullopt;
  }
  return FileIdentity{status.st_dev, status.st_ino};
}

}  // namespace folivant::platform
