// From an enumerated entry to its record and its sort key.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/FindFiles.h"
#include "platform/Text.h"
#include "scan/FileRecord.h"
#include "scan/ListingRun.h"
#include "scan/TextArena.h"

namespace folivant {

/// Whether a run shows MS-DOS names or sorts by them. Without that they are neither asked for nor kept.
platform::ShortNames ShortNamesFor(const ListingRun& run);

/// How the digits in the run's sort keys are meant. A size or date in a key is none of the numbers of natural order.
platform::Digits DigitsFor(const ListingRun& run);

/// Fills the records of one run, which outlives it.
class FileRecordFiller {
 public:
  explicit FileRecordFiller(const ListingRun& run);

  /// The names go into `texts`. `lastWrite` is what the entry's last-write time was before the filter looked at it; the
  /// entry's own is converted in place once for the date that is shown and once more for a date sort key.
  FileRecord FillFileRecord(platform::FindData& entry, std::uint64_t lastWrite, std::int32_t level, TextArena& texts);
  /// Of the record that was filled last; empty when the enumeration's order stays.
  std::wstring_view SortKey() const { return sortKey_; }

 private:
  void MakeSortKey(platform::FindData& entry);

  const ListingRun& run_;
  const bool filesLead_;  ///< whether files make up the first group
  const bool keepsShortNames_;
  std::wstring sortKey_;
};

}  // namespace folivant
