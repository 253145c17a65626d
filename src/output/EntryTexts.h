// The texts of entries, as the listings for people show them. They are appended to the line that is being written and
// live nowhere else.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "scan/FileRecord.h"
#include "scan/ListingRun.h"

namespace folivant {

/// The texts of one run, which outlives it. What repeats between entries (the texts of days) is kept.
class EntryTexts {
 public:
  explicit EntryTexts(const ListingRun& run) : texts_(run.Texts), datePattern_(run.DatePattern) {}

  /// Re-cased by ProperName.
  void AppendName(const FileRecord& entry, std::wstring& out);
  /// The 8.3 name in small letters, or the name where it is one.
  void AppendDosName(const FileRecord& entry, std::wstring& out);
  /// A size text, or the language's word for a directory and three blanks.
  void AppendSize(const FileRecord& entry, std::wstring& out);
  /// The run's date pattern, and "hh:nn".
  void AppendDate(const FileRecord& entry, std::wstring& out);
  /// "darsh": directory, archive, read-only, system, hidden; a blank in the place of an attribute that is not set.
  void AppendAttributes(const FileRecord& entry, std::wstring& out);

 private:
  struct Day {
    std::uint64_t Number = ~0ULL;  ///< since 1601
    std::wstring Text;
  };
  const std::wstring& DayText(std::uint64_t localFileTime);

  const Messages& texts_;
  const std::wstring datePattern_;
  std::array<Day, 64> days_;  ///< by the last bits of their number: entries of a tree share a few
};

}  // namespace folivant
