// From an enumerated entry to the finished texts of its record.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FindFiles.h"
#include "scan/ScanTree.h"
#include "scan/TextArena.h"
#include "scan/WalkSettings.h"

namespace folivant {

/// "darsh": directory, archive, read-only, system, hidden; a blank in the place of an attribute that is not set. The
/// text lives as long as the process.
std::wstring_view AttributeText(const platform::FindData& entry);

/// Fills the records of one run. What repeats between entries (the texts of days, the size text of directories) is
/// kept.
class FileRecordFiller {
 public:
  explicit FileRecordFiller(const WalkSettings& settings);

  /// Whether MS-DOS names are shown or sorted by. Without that they are neither asked for nor filled.
  platform::ShortNames ShortNames() const;

  /// The texts go into `texts`, but for SortKey, which is overwritten by the next call. Converts the entry's last-write
  /// time in place, once for the date text and once more for a date sort key.
  FileRecord FillFileRecord(platform::FindData& entry, std::int32_t level, TextArena& texts);

 private:
  std::wstring_view AddDosName(const platform::FindData& entry, TextArena& texts) const;
  std::wstring_view AddSize(const platform::FindData& entry, TextArena& texts);
  std::wstring_view AddDate(std::uint64_t localFileTime, TextArena& texts);
  std::wstring_view DayText(std::uint64_t localFileTime);
  void MakeSortKey(platform::FindData& entry, const FileRecord& record);

  struct Day {
    std::uint64_t Number = ~0ULL;  ///< since 1601
    std::wstring Text;
  };

  const WalkSettings& settings_;
  const std::wstring directorySize_;
  std::wstring sizeText_;
  std::array<Day, 64> days_;  ///< by the last bits of their number: entries of a tree share a few
  std::wstring sortKey_;
};

}  // namespace folivant
