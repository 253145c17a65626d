// The walk of the directory view (3): it collects one node per directory with running totals, always of the whole tree.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

#include "scan/DepthFirstWalk.h"
#include "scan/DirNode.h"
#include "scan/PackedStore.h"

namespace folivant {

class DirectoryViewWalk final : public DepthFirstWalk {
 public:
  /// `run` outlives the walk.
  explicit DirectoryViewWalk(ListingRun& run);

  /// After Walk: calls `list` for every node that `subLevel` admits, in depth-first order and with its Path filled,
  /// until `stop` says so. A directory that could not be read has zero counts; after a cancelled walk the sums are
  /// unfinished.
  void ForEachListedNode(std::int32_t subLevel, const std::function<bool()>& stop,
                         const std::function<void(const DirNode&)>& list) const;

 private:
  void BeginDirectory(const Frame& frame) override;
  void TakeEntry(const Frame& frame, platform::FindData& entry) override;
  void EndDirectory(const Frame& frame) override;
  Step Next(Frame& frame) override;
  void LeaveDirectory(const Frame& frame) override;

  /// A node as it is kept: its name is packed.
  struct KeptNode {
    std::uint32_t Name = 0;  ///< in names_
    std::int32_t Level = 0;
    std::int32_t Files = 0;
    std::int32_t TotalFiles = 0;
    Currency Size;
    Currency TotalSize;
  };
  void AddNode(std::wstring_view name, std::int32_t level);

  PackedStore names_;
  PackedRecord record_;
  std::deque<KeptNode> nodes_;
  std::vector<std::size_t> within_;  ///< the nodes of the directories that the walk is in
};

}  // namespace folivant
