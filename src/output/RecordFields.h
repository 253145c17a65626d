// The fields of exact records, listed once for the kinds that write them: nothing is re-cased, rounded, cut or shifted.
// A new field is one row.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
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

  std::optional<std::wstring> Owner(const RecordedEntry& entry);
  std::optional<std::uint32_t> Links(const RecordedEntry& entry);
  /// Of files alone. Shows the file as what is being read, and lets events through while it is: once the run is
  /// cancelled there is no value.
  std::optional<std::wstring> Sha256(const RecordedEntry& entry);

 private:
  template <class Read>
  auto ValueOf(const RecordedEntry& entry, Read read) -> decltype(read());
  std::optional<std::wstring> Hash(const RecordedEntry& entry);

  ListingRun& run_;
  std::string block_;
};

/// Takes the value of a field, in the way of a kind of record. One of these is called, once for each field.
class FieldSink {
 public:
  virtual ~FieldSink() = default;
  /// Any text, as the system has it.
  virtual void Text(std::wstring_view text) = 0;
  /// Letters, digits and marks that no kind has to escape.
  virtual void Plain(std::string_view text) = 0;
  virtual void Number(std::uint64_t number) = 0;
  /// There is no value.
  virtual void None() = 0;
};

/// A field of a row about a `Subject`.
template <class Subject>
struct RecordField {
  std::string_view Name;
  void (*Put)(const Subject& subject, RecordedFacts& facts, FieldSink& out);
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

/// "2026-11-21T23:17:31.1234567Z", for a time other than 0.
class UtcTimeText {
 public:
  explicit UtcTimeText(std::uint64_t fileTime);
  std::string_view Text() const { return {text_.data(), length_}; }

 private:
  std::array<char, 32> text_;
  std::size_t length_ = 0;
};

}  // namespace folivant
