// The walk of the tree style (2): it collects the entries of the whole tree in listing order, the contents of each
// directory right behind its own entry.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "scan/DepthFirstWalk.h"
#include "scan/EntryStore.h"
#include "scan/FileRecords.h"
#include "scan/SortOrder.h"
#include "scan/TextArena.h"

namespace folivant {

class TreeWalk final : public DepthFirstWalk {
 public:
  /// `run` outlives the walk.
  explicit TreeWalk(ListingRun& run);

  /// After Walk: calls `list` for every entry that is shown, in listing order. A directory that could not be opened is
  /// not shown.
  void ForEachEntry(const std::function<void(const FileRecord&)>& list) const;

 private:
  /// An entry that waits for its turn.
  struct PendingEntry {
    std::uint32_t Entry;  ///< in entries_
    std::uint32_t Name;   ///< in Names, for a directory
  };
  static constexpr std::uint32_t kNoName = ~0U;
  /// A directory that the walk is in, or that is being read.
  struct Contents {
    std::size_t FirstPending = 0;  ///< its entries, in pending_
    std::size_t NextPending = 0;
    std::size_t Kept = 0;
    Currency Size;
  };

  void BeginDirectory(const Frame& frame) override;
  void TakeEntry(const Frame& frame, platform::FindData& entry) override;
  void EndDirectory(const Frame& frame) override;
  Step Next(Frame& frame) override;
  void LeaveDirectory(const Frame& frame) override;

  FileRecordFiller filler_;
  EntryStore entries_;
  std::vector<std::uint32_t> list_;  ///< the entries that are shown, in listing order
  std::vector<Contents> contents_;
  std::vector<PendingEntry> pending_;

  // Of the directory that is being read; their memory serves the next one.
  TextArena texts_;
  std::vector<PendingEntry> found_;
  EntrySorter sorter_;
  std::vector<std::uint32_t> order_;
};

}  // namespace folivant
