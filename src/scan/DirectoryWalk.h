// The walk of the styles that list entries: it streams one directory after the other (styles 0, 1 and 4), or collects
// the entries of the whole tree (style 2).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scan/DirectoryStack.h"
#include "scan/FileRecords.h"
#include "scan/ListingWriter.h"
#include "scan/Progress.h"
#include "scan/ScanTree.h"
#include "scan/WalkPath.h"
#include "scan/WalkSettings.h"

namespace folivant {

class DirectoryWalk {
 public:
  /// All arguments outlive the walk.
  DirectoryWalk(const WalkSettings& settings, ScanTree& tree, ListingWriter& output, Progress& progress);

  /// Walks from ScanTree::StartPath. Depth-first; a directory that cannot be read is skipped silently but for
  /// ScanTree::Unreadable. Ends early, without totals for the directories that it is still in, once the run is
  /// cancelled.
  void ScanDirectory();

 private:
  /// A directory whose children are being visited.
  struct Frame {
    WalkPath::Mark Path;
    std::int32_t Level;
    std::int32_t Share;
    std::size_t FirstName;       ///< of its subdirectories, in names_
    std::size_t NextName;        ///< streaming styles: the next one to enter
    std::size_t Subdirectories;  ///< how many it has
    std::size_t FirstPending;    ///< tree style: of its entries, in pending_
    std::size_t NextPending;
    std::size_t Kept;
    Currency Size;
  };
  /// An entry of tree style that waits for its turn.
  struct PendingEntry {
    std::uint32_t Record;  ///< in ScanTree::TreeRecords
    std::uint32_t Name;    ///< in names_, for a directory
  };
  static constexpr std::uint32_t kNoName = ~0U;
  /// What became of the topmost frame: a child was entered, an entry or unreadable child was passed, or all is done.
  enum class Step { Entered, Passed, Finished };

  bool IsTree() const { return settings_.Format.ListingStyle == ListingStyle::TreeStyle; }
  bool MayDescend(std::int32_t level) const;
  bool Cancelled();

  bool OpenDirectory(std::int32_t level, std::int32_t share);
  void KeepEntry(platform::FindData& entry, Frame& frame);
  void RaiseListDirectory(const Frame& frame);
  void AddPending(Frame& frame);
  Step EnterNextSubdirectory(Frame& frame);
  Step ListNextEntry(Frame& frame);
  void Leave(const Frame& frame);

  const WalkSettings& settings_;
  ScanTree& tree_;
  ListingWriter& output_;
  Progress& progress_;
  FileRecordFiller filler_;
  WalkPath path_;
  std::vector<Frame> frames_;
  NameStack names_;
  Ancestors ancestors_;
  std::vector<PendingEntry> pending_;

  // Of the directory that is being read; their memory serves the next one.
  TextArena texts_;
  std::vector<FileRecord> records_;
  std::vector<std::uint32_t> recordNames_;
  EntrySorter sorter_;
  std::vector<std::uint32_t> order_;
  std::wstring summary_;
};

}  // namespace folivant
