// Enumeration of directories and look-up of single entries. Paths are Windows paths ("C:\Data"); in the host build
// the drive "Z:" stands for "/". Paths longer than 260 characters work.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SystemReason.h"

namespace folivant::platform {

// Attribute bits, as the file system numbers them.
inline constexpr std::uint32_t kReadOnly = 1;
inline constexpr std::uint32_t kHidden = 2;
inline constexpr std::uint32_t kSystem = 4;
inline constexpr std::uint32_t kDirectory = 16;
inline constexpr std::uint32_t kArchive = 32;
inline constexpr std::uint32_t kLink = 1024;  ///< reparse point: the directory may be a link to another one

/// One entry as the system reports it.
struct FindData {
  std::uint32_t Attributes = 0;
  /// UTC, 100-nanosecond units since 1601-01-01. FileDateOf (scan/FileDates.h) converts it in place.
  std::uint64_t LastWrite = 0;
  std::uint64_t Created = 0;        ///< like LastWrite; 0 where the file system keeps no such time
  std::uint64_t LastAccess = 0;     ///< the same
  std::uint32_t ReparseTag = 0;     ///< what a reparse point is; 0 for all else, and where the system does not say
  std::uint64_t Size = 0;           ///< bytes; 0 for a directory
  std::wstring_view Name;           ///< as on disk; valid until the next call of Next
  std::wstring_view AlternateName;  ///< the 8.3 name; empty when Name is one already or when it was not asked for

  bool IsDirectory() const { return (Attributes & kDirectory) != 0; }
  bool IsLink() const { return (Attributes & kLink) != 0; }
};

/// Whether an entry is a link: a reparse point that stands in for another file or directory. One without a tag is taken
/// for a link, and a file that lies in a cloud is none.
constexpr bool StandsForAnother(std::uint32_t attributes, std::uint32_t reparseTag) {
  constexpr std::uint32_t kNameSurrogate = 0x20000000;
  return (attributes & kLink) != 0 && (reparseTag == 0 || (reparseTag & kNameSurrogate) != 0);
}

/// Whether an enumeration asks for 8.3 names: on some file systems they cost more than everything else together.
enum class ShortNames { Skip, Read };

/// Every entry of one directory, in the order of the file system; "." and ".." never appear.
class FindFiles {
 public:
  FindFiles(std::wstring_view directory, ShortNames shortNames);
  ~FindFiles();
  FindFiles(const FindFiles&) = delete;
  FindFiles& operator=(const FindFiles&) = delete;

  /// False when the directory does not exist or may not be read.
  bool Opened() const;
  /// Fills `data` with the next entry; false at the end. A failure in mid-enumeration ends it and makes Failed true.
  bool Next(FindData& data);
  bool Failed() const;
  /// Why Opened is false or Failed true.
  SystemReason Reason() const;
  /// Whether that is because this user may not read the directory.
  bool Denied() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// One entry that outlives its look-up.
struct FoundEntry {
  FindData Data;      ///< its two names are empty: use the texts below
  std::wstring Name;  ///< the name of the last component as on disk
};

/// Looks up one path (no wildcards are expanded; letter case does not matter, an exact match takes precedence). Nothing
/// when it does not exist or when its last component is empty.
std::optional<FoundEntry> FindEntry(std::wstring_view path);

/// What tells whether two paths lead to the same directory.
struct FileIdentity {
  std::uint64_t Volume = 0;
  std::uint64_t File = 0;
  bool operator==(const FileIdentity&) const = default;
};
/// Links are followed. Nothing when the directory cannot be opened.
std::optional<FileIdentity> IdentityOf(std::wstring_view directory);

}  // namespace folivant::platform
