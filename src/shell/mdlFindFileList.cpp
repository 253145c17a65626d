#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdlFileRoutines.h"
#include "platform/FindFiles.h"
#include "platform/RuntimeError.h"
#include "scan/FileDates.h"
#include "scan/ListingRun.h"
#include "scan/NameRules.h"
#include "shell/PathListLines.h"
#include "shell/mdlFind.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

FoundItem RowOf(const LongPath& path, platform::FoundEntry entry, const ListingRun& run) {
  FileRecord record;
  record.Size = entry.Data.Size;
  record.LastWrite = entry.Data.LastWrite;
  record.Created = entry.Data.Created;
  record.LastAccess = entry.Data.LastAccess;
  record.Attributes = entry.Data.Attributes;
  record.ReparseTag = entry.Data.ReparseTag;
  const std::wstring pattern = run.DatePattern + L' ' + std::wstring(kTimePattern);
  return {ProperName(GetFileName(path.Shown)),
          GetFolder(path.Shown),
          FormatSizeFixedUnits(Currency::FromWhole(entry.Data.Size)),
          FormatDate(FileTimeOf(entry.Data.LastWrite, run.LocalOffset), pattern),
          path.OnDisk,
          record};
}

bool IsFullPath(std::wstring_view line) {
  return line.starts_with(L"\\\\") || (line.size() > 2 && line.substr(1, 2) == L":\\");
}

/// What an error names. A line that is longer than any path is named by its beginning.
std::wstring NameOf(const std::wstring& line) {
  constexpr std::size_t kLongestPath = 32'767;
  constexpr std::size_t kBeginning = 259;
  return line.size() <= kLongestPath ? line : line.substr(0, kBeginning) + L"...";
}

/// One row; nothing for a line that is no full path. Throws RuntimeError (ReadFile) for a file that is not there.
std::optional<FoundItem> ReadRow(const std::wstring& line, const ListingRun& run) {
  const LongPath path = GetLongPath(line);
  if (path.OnDisk.empty() && !IsFullPath(WithBackslashes(line))) {
    return std::nullopt;
  }
  const std::optional<platform::FoundEntry> entry = platform::FindEntry(path.OnDisk);
  if (!entry) {
    throw RuntimeError(FailedAction::ReadFile, NameOf(line), {}, 0);
  }
  return RowOf(path, *entry, run);
}

std::vector<FoundItem> ReadPathListFile(ListingRun& run) {
  PathListLines lines(run.Start.OnDisk, run.Watcher);
  std::vector<FoundItem> rows;
  bool blank = true;
  while (const std::optional<std::wstring> line = lines.Next()) {
    blank = false;
    if (std::optional<FoundItem> row = ReadRow(*line, run)) {
      rows.push_back(*std::move(row));
    }
    run.Watcher.LetEventsThrough();
    if (run.IsCancelled()) {
      break;
    }
  }
  if (!blank && rows.empty() && !run.IsCancelled()) {
    throw RuntimeError(FailedAction::ListPaths, lines.Path(), {}, 0);
  }
  return rows;
}

}  // namespace

FoundRows FindCapture::PrintFromFileList(ListingRun& run) {
  return {findWindowTitle_, ReadPathListFile(run)};
}

}  // namespace folivant
