// The state of one listing run: its totals, its start, and what the collecting styles gather.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "base/Currency.h"
#include "scan/TextArena.h"

namespace folivant {

/// One kept entry as finished display texts. The texts live in the arena of the directory or of the run; a record in
/// an event is valid until the handler returns.
struct FileRecord {
  std::wstring_view Name;     ///< re-cased by ProperName
  std::wstring_view DosName;  ///< lower case
  std::wstring_view SortKey;  ///< in memory of its own, only until the next record is filled; empty in kept records
  std::wstring_view SizeText;
  std::wstring_view DateText;
  std::wstring_view AttrText;  ///< five characters, "darsh" or blanks
  std::int32_t Level = 0;      ///< depth of the directory that holds the entry; -1 in a tree: not to be printed

  bool IsDirectory() const { return AttrText.find(L'd') != AttrText.npos; }
};
inline constexpr std::int32_t kHiddenLevel = -1;

/// One directory of the directory view.
struct DirNode {
  std::wstring_view Name;  ///< as on disk; the start path for node 0
  std::wstring_view Path;  ///< as shown; filled when the node is listed
  std::int32_t Level = 0;
  std::int32_t Files = 0;
  Currency Size;
  std::int32_t TotalFiles = 0;  ///< with everything below
  Currency TotalSize;
};

/// One row of the file lists.
struct FoundItem {
  std::wstring Name;
  std::wstring InFolder;
  std::wstring Size;
  std::wstring Modified;
};

struct RunTotals {
  Currency TotalSize;
  std::int32_t TotalFiles = 0;
  std::int32_t TotalDirs = 0;
};

struct ScanTree {
  std::wstring StartPath;        ///< as shown, re-cased
  std::wstring StartPathOnDisk;  ///< as opened: names as the file system spells them
  RunTotals Totals;
  bool Cancelled = false;
  bool Unreadable = false;  ///< some directory could not be read; the listing itself stays silent about it

  std::deque<DirNode> DirNodes;         ///< depth-first, the start directory first
  std::deque<FileRecord> TreeRecords;   ///< the entries of tree style, directory by directory
  std::vector<std::uint32_t> TreeList;  ///< indexes into TreeRecords, depth-first in listing order
  std::vector<FoundItem> FoundList;     ///< may hold one slot more than FoundCount
  std::int32_t FoundCount = 0;
  std::wstring FindWindowTitle;  ///< heading of the file lists; keeps its last value between runs
  TextArena Texts;               ///< owns the texts of DirNodes and TreeRecords

  /// Totals and flags to zero, for the start of a run.
  void ResetTotals();
  /// Empties the collections, for the end of a run.
  void ReleaseLists() noexcept;
};

}  // namespace folivant
