// The fields of exact records, listed once for the kinds that write them: nothing is re-cased, rounded, cut or shifted.
// A new field is one row.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/FileFacts.h"
#include "scan/DirNode.h"
#include "scan/FileRecord.h"
#include "scan/FoundRows.h"
#include "scan/ListingRun.h"

namespace folivant {

/// A listed entry with all that its fields say.
struct RecordedEntry {
  std::wstring_view Path;  ///< full, on disk
  std::wstring_view Name;
  const FileRecord& Entry;
};

/// What costs an open per file. A file that cannot be read has no value and is added to the run's unread ones.
class RecordedFacts {
 public:
  /// `run` outlives it.
  explicit RecordedFacts(ListingRun& run) : run_(run) {}

  // False, and `out` unchanged, when there is no value.
  bool AppendOwner(const RecordedEntry& entry, std::wstring& out);
  bool AppendLinks(const RecordedEntry& entry, std::wstring& out);
  /// Of files alone. Shows the file as what is being read, and lets events through while it is: once the run is
  /// cancelled there is no value.
  bool AppendSha256(const RecordedEntry& entry, std::wstring& out);

 private:
  template <class Read>
  bool Append(const RecordedEntry& entry, Read read);
  bool Hash(const RecordedEntry& entry, platform::Sha256& hash);

  ListingRun& run_;
  std::string block_;
};

enum class FieldType { Text, Number };

/// A field of a row about a `Subject`.
template <class Subject>
struct RecordField {
  std::wstring_view Name;
  FieldType Type;
  /// Appends the value; false, and nothing appended, where there is none.
  bool (*Append)(const Subject& subject, RecordedFacts& facts, std::wstring& out);
  bool GeneralSettings::*Switch = nullptr;  ///< what turns it on; null for a field that is always there
};

template <class Subject>
using RecordFields = std::span<const RecordField<Subject>>;

/// Styles 0, 1, 2, 4 and 6.
extern const RecordFields<RecordedEntry> kEntryFields;
/// Style 3: a directory with its four numbers.
extern const RecordFields<DirNode> kDirectoryFields;
/// Style 5: the four texts as they were read.
extern const RecordFields<FoundItem> kFoundFields;

/// "file", "directory" or "link".
std::wstring_view EntryType(const FileRecord& entry);
/// "2026-11-21T23:17:31.1234567Z"; nothing is appended for 0.
bool AppendUtcTime(std::uint64_t fileTime, std::wstring& out);

}  // namespace folivant
