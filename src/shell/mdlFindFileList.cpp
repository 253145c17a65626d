#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/mdlVars.h"
#include "base/mdlFileRoutines.h"
#include "output/EntryFormatting.h"
#include "platform/Clock.h"
#include "platform/FindFiles.h"
#include "platform/RuntimeError.h"
#include "scan/FileDates.h"
#include "scan/NameRules.h"
#include "shell/PathListLines.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

FoundItem RowOf(const LongPath& path, platform::FoundEntry entry, std::int64_t localOffset) {
  const std::uint64_t size = (std::uint64_t{entry.Data.SizeHigh} << 32) | entry.Data.SizeLow;
  const std::wstring pattern = mdlVars::DatePattern + L' ' + std::wstring(kTimePattern);
  return {ProperName(GetFileName(path.Shown)), GetFolder(path.Shown), FormatSizeFixedUnits(Currency::FromWhole(size)),
          FormatDate(FileTimeOf(entry.Data.LastWrite, localOffset), pattern)};
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
std::optional<FoundItem> ReadRow(const std::wstring& line, std::int64_t localOffset) {
  const LongPath path = GetLongPath(line);
  if (path.OnDisk.empty() && !IsFullPath(WithBackslashes(line))) {
    return std::nullopt;
  }
  const std::optional<platform::FoundEntry> entry = platform::FindEntry(path.OnDisk);
  if (!entry) {
    throw RuntimeError(FailedAction::ReadFile, NameOf(line), {}, 0);
  }
  return RowOf(path, *entry, localOffset);
}

/// All rows or none: an error leaves the list as it was.
void ReadPathListFile(Progress& progress) {
  const std::int64_t localOffset = platform::LocalOffset();
  PathListLines lines(mdlVars::Tree.StartPath, progress);
  std::vector<FoundItem> rows;
  bool blank = true;
  while (const std::optional<std::wstring> line = lines.Next()) {
    blank = false;
    if (std::optional<FoundItem> row = ReadRow(*line, localOffset)) {
      rows.push_back(*std::move(row));
    }
    progress.LetEventsThrough();
    if (progress.Cancelled()) {
      break;
    }
  }
  if (!blank && rows.empty() && !progress.Cancelled()) {
    throw RuntimeError(FailedAction::ListPaths, lines.Path(), {}, 0);
  }
  mdlVars::Tree.FoundCount = static_cast<std::int32_t>(rows.size());
  mdlVars::Tree.FoundList = std::move(rows);
}

}  // namespace

void PrintFromFileList(ListingWriter& output, Progress& progress) {
  ReadPathListFile(progress);
  if (!progress.Cancelled()) {
    output.FindList(mdlVars::Tree.FoundList);
  }
}

}  // namespace folivant
