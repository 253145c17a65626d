// The walk of the directory view: it collects one node per directory with running totals, always of the whole tree.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "scan/DirectoryStack.h"
#include "scan/Progress.h"
#include "scan/ScanTree.h"
#include "scan/WalkPath.h"
#include "scan/WalkSettings.h"

namespace folivant {

class DirectoryViewWalk {
 public:
  /// All arguments outlive the walk.
  DirectoryViewWalk(const WalkSettings& settings, ScanTree& tree, Progress& progress);

  /// Fills ScanTree::DirNodes from ScanTree::StartPath, in depth-first order. A directory that cannot be read keeps
  /// zero counts. Ends early, with the sums unfinished, once the run is cancelled.
  void ScanDirectoryView();

 private:
  /// A directory whose subdirectories are being visited.
  struct Frame {
    WalkPath::Mark Path;
    std::uint32_t Node;
    std::int32_t Share;
    std::size_t FirstName;  ///< of its subdirectories, in names_
    std::size_t NextName;
    std::size_t Subdirectories;
  };

  bool Cancelled();
  void OpenDirectory(std::uint32_t node, std::int32_t share);
  bool EnterNextSubdirectory(Frame& frame);
  void Leave(const Frame& frame);

  const WalkSettings& settings_;
  ScanTree& tree_;
  Progress& progress_;
  WalkPath path_;
  std::vector<Frame> frames_;
  NameStack names_;
  Ancestors ancestors_;
};

/// Calls `list` for every node that `subLevel` admits, in order and with its Path filled, until `stop` says so.
void ForEachListedNode(ScanTree& tree, std::int32_t subLevel, const std::function<bool()>& stop,
                       const std::function<void(const DirNode&)>& list);

}  // namespace folivant
