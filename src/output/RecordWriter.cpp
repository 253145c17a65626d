#include "output/RecordWriter.h"

#include <charconv>
#include <iterator>
#include <limits>

#include "base/mdlFileRoutines.h"

namespace folivant {

void AppendNumber(std::uint64_t number, std::string& out) {
  char digits[20];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  out.append(digits, static_cast<std::size_t>(end - digits));
}

void RecordWriter::BeginListing(ListingRun& run) {
  run_ = &run;
  facts_.emplace(run);
  totals_ = {};
  path_ = AddBackslash(run.Start.OnDisk);
  ends_.assign(1, path_.size());
  file_.Open(run.OutputFile);
  Begin(row_);
  WriteRow();
}

void RecordWriter::ListDirectory(const DirectoryListing& directory) {
  path_ = AddBackslash(directory.PathOnDisk);
  const std::size_t end = path_.size();
  for (const std::uint32_t index : directory.Order) {
    const FileRecord& entry = directory.Records[index];
    path_.resize(end);
    path_ += entry.Name;
    WriteEntry({path_, entry.Name, entry});
  }
}

/// Entries come depth-first, so the directory that holds one is the last that came on the level above.
void RecordWriter::TreeEntry(const FileRecord& entry) {
  ends_.resize(static_cast<std::size_t>(entry.Level) + 1);
  path_.resize(ends_.back());
  path_ += entry.Name;
  WriteEntry({path_, entry.Name, entry});
  if (entry.IsDirectory()) {
    path_ += L'\\';
    ends_.push_back(path_.size());
  }
}

void RecordWriter::DirectoryViewEntry(const DirNode& node) {
  AppendDirectory(node, row_);
  ++totals_.Directories;
  totals_.Files += static_cast<std::uint64_t>(node.Files);
  totals_.Bytes += static_cast<std::uint64_t>(node.Size.Whole());
  WriteRow();
}

void RecordWriter::FindList(const FoundRows& rows) {
  for (const FoundItem& row : rows.Items) {
    if (row.PathOnDisk.empty()) {
      AppendFound(row, row_);
      ++totals_.Files;
      WriteRow();
    } else {
      WriteEntry(
          {row.PathOnDisk, std::wstring_view(row.PathOnDisk).substr(row.PathOnDisk.rfind(L'\\') + 1), row.Entry});
    }
  }
}

/// A row that a cancelled run was at has fields that were not finished, and is not written.
void RecordWriter::WriteEntry(const RecordedEntry& entry) {
  AppendEntry(entry, row_);
  if (run_->Cancelled && run_->General.RecordSha256) {
    row_.clear();
    return;
  }
  Count(entry.Entry);
  WriteRow();
}

void RecordWriter::Count(const FileRecord& entry) {
  const bool link = platform::StandsForAnother(entry.Attributes, entry.ReparseTag);
  ++(link ? totals_.Links : entry.IsDirectory() ? totals_.Directories : totals_.Files);
  if (entry.Size > std::numeric_limits<std::uint64_t>::max() - totals_.Bytes) {
    totals_.Bytes = std::numeric_limits<std::uint64_t>::max();
    totals_.MoreBytes = true;
  } else {
    totals_.Bytes += entry.Size;
  }
}

void RecordWriter::WriteRow() {
  file_.WriteBytes(row_);
  row_.clear();
}

void RecordWriter::EndListing() {
  End(row_);
  WriteRow();
  file_.Close();
}

void RecordWriter::AbortListing() noexcept {
  try {
    row_.clear();
    file_.Close();
  } catch (const std::exception&) {
    // The failure that ended the run is already on its way to the user.
  }
}

}  // namespace folivant
