// The walk of the styles that list one directory after the other (0, 1 and 4).
#pragma once

#include <string>
#include <vector>

#include "scan/DepthFirstWalk.h"
#include "scan/FileRecords.h"
#include "scan/ListingWriter.h"
#include "scan/SortOrder.h"
#include "scan/TextArena.h"

namespace folivant {

class StreamingWalk final : public DepthFirstWalk {
 public:
  /// Raises one event per directory: ListDirectory, or ListPaths in style 4. Both arguments outlive the walk.
  StreamingWalk(ListingRun& run, ListingWriter& output);

 private:
  /// What a directory lists.
  struct Kept {
    std::size_t Count = 0;
    Currency Size;
  };

  void BeginDirectory(const Frame& frame) override;
  void TakeEntry(const Frame& frame, platform::FindData& entry) override;
  void EndDirectory(const Frame& frame) override;
  Step Next(Frame& frame) override;
  void LeaveDirectory(const Frame& frame) override;

  void SortEntries();
  void RaiseEvent(const Frame& frame);

  ListingWriter& output_;
  FileRecordFiller filler_;
  std::vector<Kept> kept_;  ///< of each directory that the walk is in, and of the one being read

  // Of the directory that is being read; their memory serves the next one.
  TextArena texts_;
  std::vector<FileRecord> records_;
  EntrySorter sorter_;
  std::vector<std::uint32_t> order_;
  std::wstring summary_;
};

}  // namespace folivant
