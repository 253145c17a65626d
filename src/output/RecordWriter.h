// What the writers of exact records have in common: an open file of bytes, and the way from listing events to rows
// about entries with their full paths.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "output/RecordFields.h"
#include "platform/OutputFile.h"
#include "scan/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

/// What a record counts: of the rows that were written.
struct RecordTotals {
  std::uint64_t Files = 0;
  std::uint64_t Directories = 0;
  std::uint64_t Links = 0;
  std::uint64_t Bytes = 0;
  bool MoreBytes = false;  ///< the sum does not fit into 64 bits, and Bytes is the largest number that does
};

void AppendNumber(std::uint64_t number, std::string& out);

class RecordWriter : public ListingWriter {
 public:
  void BeginListing(ListingRun& run) final;
  void ListDirectory(const DirectoryListing& directory) final;
  void ListPaths(const DirectoryListing& directory) final { ListDirectory(directory); }
  void TreeEntry(const FileRecord& entry) final;
  void DirectoryViewEntry(const DirNode& node) final;
  void FindList(const FoundRows& rows) final;
  void EndListing() final;
  void AbortListing() noexcept final;

 protected:
  /// What stands before the first row and behind the last, in bytes appended to `out`.
  virtual void Begin(std::string& out) = 0;
  virtual void End(std::string& out) = 0;
  /// The bytes of one row, or none.
  virtual void AppendEntry(const RecordedEntry& entry, std::string& out) = 0;
  virtual void AppendDirectory(const DirNode& node, std::string& out) = 0;
  virtual void AppendFound(const FoundItem& row, std::string& out) = 0;

  // From the beginning of a listing to its end.
  ListingRun& Run() const { return *run_; }
  RecordedFacts& Facts() { return *facts_; }
  const RecordTotals& Totals() const { return totals_; }
  template <class Subject>
  bool IsShown(const RecordField<Subject>& field) const {
    return field.Switch == nullptr || run_->General.*field.Switch;
  }

 private:
  void WriteEntry(const RecordedEntry& entry);
  void WriteRow();
  void Count(const FileRecord& entry);

  ListingRun* run_ = nullptr;
  std::optional<RecordedFacts> facts_;
  platform::OutputFile file_;
  RecordTotals totals_;
  std::string row_;
  std::wstring path_;
  std::vector<std::size_t> ends_;  ///< tree style: where the path of each level's directory ends in path_
};

}  // namespace folivant
