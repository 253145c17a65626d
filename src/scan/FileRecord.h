// One listed entry as a walk found it: raw values, so that a text exists only while its line is written. The texts of
// listings for people are made by output/EntryTexts.h.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/FindFiles.h"

namespace folivant {

/// The names live in the arena of the directory or of the run; a record in an event is valid until the handler returns.
struct FileRecord {
  std::wstring_view Name;           ///< as on disk
  std::wstring_view AlternateName;  ///< the 8.3 name; empty when Name is one already or when no column shows it
  std::uint64_t Size = 0;           ///< bytes; 0 for a directory
  std::uint64_t LastWrite = 0;      ///< UTC, as the file system keeps it
  std::uint64_t Created = 0;        ///< UTC; 0 where the file system keeps no such time
  std::uint64_t LastAccess = 0;     ///< the same
  std::uint64_t ShownWrite = 0;     ///< LastWrite as listings show it: local, shifted as often as FileDates.h tells
  std::uint32_t Attributes = 0;     ///< bits of platform/FindFiles.h
  std::uint32_t ReparseTag = 0;     ///< of platform/FindFiles.h
  std::int32_t Level = 0;           ///< depth of the directory that holds the entry; the start directory is 0

  bool IsDirectory() const { return (Attributes & platform::kDirectory) != 0; }
};

}  // namespace folivant
