#include "scan/DirectoryViewWalk.h"

#include "scan/Filter.h"

namespace folivant {

DirectoryViewWalk::DirectoryViewWalk(const WalkSettings& settings, ScanTree& tree, Progress& progress)
    : settings_(settings), tree_(tree), progress_(progress), path_(tree.StartPath, tree.StartPathOnDisk) {}

void DirectoryViewWalk::ScanDirectoryView() {
  constexpr std::int32_t kWholeBar = 100;
  tree_.DirNodes.clear();
  tree_.DirNodes.push_back({tree_.StartPath, {}, 0, 0, {}, 0, {}});
  OpenDirectory(0, kWholeBar);
  while (!frames_.empty()) {
    path_.GoBackTo(frames_.back().Path);
    const std::size_t depth = frames_.size();
    if (!EnterNextSubdirectory(frames_.back())) {
      Leave(frames_.back());
      frames_.pop_back();
      ancestors_.Pop();
    }
    const bool entered = frames_.size() > depth;
    if (!entered && !frames_.empty() && Cancelled()) {
      return;
    }
  }
}

bool DirectoryViewWalk::Cancelled() {
  tree_.Cancelled |= progress_.Cancelled();
  return tree_.Cancelled;
}

/// Reads the directory at the end of path_ into its node and puts its frame on the stack, if it can be opened.
void DirectoryViewWalk::OpenDirectory(std::uint32_t index, std::int32_t share) {
  progress_.ShowDirectory(path_.Shown());
  progress_.LetEventsThrough();
  platform::FindFiles files(path_.OnDisk(), platform::ShortNames::Skip);
  if (!files.Opened()) {
    tree_.Unreadable = true;
    return;
  }
  DirNode& node = tree_.DirNodes[index];
  Frame frame{path_.Here(), index, share, names_.Size(), names_.Size(), 0};
  for (platform::FindData entry; files.Next(entry);) {
    progress_.LetEventsThrough();
    if (entry.IsDirectory()) {
      names_.Push(entry.Name, entry.IsLink());
    } else if (MatchesFilter(entry, settings_.Filter, settings_.Patterns, settings_.LocalOffset)) {
      ++node.Files;
      node.Size += FileSizeOf(entry);
    }
  }
  tree_.Unreadable |= files.Failed();
  frame.Subdirectories = names_.Size() - frame.FirstName;
  names_.SortFrom(frame.FirstName, settings_.Filter.OrderAZ);
  ancestors_.Push(frame.Path);
  frames_.push_back(frame);
}

/// False when the directory has no further subdirectory.
bool DirectoryViewWalk::EnterNextSubdirectory(Frame& frame) {
  if (frame.NextName == frame.FirstName + frame.Subdirectories) {
    return false;
  }
  const std::size_t name = frame.NextName++;
  path_.Enter(names_.TextOf(name), names_.TextOf(name));
  const auto index = static_cast<std::uint32_t>(tree_.DirNodes.size());
  tree_.DirNodes.push_back(
      {tree_.Texts.Add(names_.TextOf(name)), {}, tree_.DirNodes[frame.Node].Level + 1, 0, {}, 0, {}});
  if (!names_[name].IsLink || !ancestors_.Contain(path_)) {
    OpenDirectory(index, DivideShare(frame.Share, frame.Subdirectories));
  }
  return true;
}

/// The directory's subdirectories have added their totals; now it adds its own to the run's, and all to its parent's.
void DirectoryViewWalk::Leave(const Frame& frame) {
  if (frame.Subdirectories == 0) {
    progress_.SetProgress(frame.Share);
  }
  DirNode& node = tree_.DirNodes[frame.Node];
  node.TotalFiles += node.Files;
  node.TotalSize += node.Size;
  tree_.Totals.TotalSize += node.Size;
  tree_.Totals.TotalFiles += node.Files;
  ++tree_.Totals.TotalDirs;
  if (frames_.size() > 1) {
    DirNode& parent = tree_.DirNodes[frames_[frames_.size() - 2].Node];
    parent.TotalFiles += node.TotalFiles;
    parent.TotalSize += node.TotalSize;
  }
  names_.CutTo(frame.FirstName);
}

void ForEachListedNode(ScanTree& tree, std::int32_t subLevel, const std::function<bool()>& stop,
                       const std::function<void(const DirNode&)>& list) {
  WalkPath path(tree.StartPath, {});
  std::vector<WalkPath::Mark> marks;  // where the path of each level on the way ends
  for (DirNode& node : tree.DirNodes) {
    if (stop()) {
      return;
    }
    const auto level = static_cast<std::size_t>(node.Level);
    if (level > 0) {
      path.GoBackTo(marks[level - 1]);
      path.Enter(node.Name, {});
    }
    marks.resize(level);
    marks.push_back(path.Here());
    if (subLevel == 0 || node.Level <= subLevel) {
      node.Path = path.Shown();
      list(node);
      node.Path = {};
    }
  }
}

}  // namespace folivant
