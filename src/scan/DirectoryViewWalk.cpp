// The walk of the directory view: it collects directories, because a line shows sums over all below it.
#include "scan/DirectoryViewWalk.h"

#include "scan/Filter.h"

namespace folivant {

DirectoryViewWalk::DirectoryViewWalk(ListingRun& run) : DepthFirstWalk(run, platform::ShortNames::Skip) {
  AddNode(run.Start.Shown, 0);
}

void DirectoryViewWalk::AddNode(std::wstring_view name, std::int32_t level) {
  record_.Clear();
  record_.Put(name);
  nodes_.push_back(
      {.Name = names_.Add(record_), .Level = level, .Files = 0, .TotalFiles = 0, .Size = {}, .TotalSize = {}});
}

/// A directory's node was added right before it was opened.
void DirectoryViewWalk::BeginDirectory(const Frame&) {
  within_.push_back(nodes_.size() - 1);
}

void DirectoryViewWalk::TakeEntry(const Frame&, platform::FindData& entry) {
  if (!entry.IsDirectory() && MatchesFilter(entry, Run().Filter, Run().Patterns, Run().LocalOffset)) {
    KeptNode& node = nodes_[within_.back()];
    ++node.Files;
    node.Size += FileSizeOf(entry);
  }
}

void DirectoryViewWalk::EndDirectory(const Frame& frame) {
  Names().SortFrom(frame.FirstName, Run().Filter.OrderAZ);
}

DepthFirstWalk::Step DirectoryViewWalk::Next(Frame& frame) {
  if (frame.NextName == frame.FirstName + frame.Subdirectories) {
    return Step::Finished;
  }
  const std::size_t name = frame.NextName++;
  AddNode(Names().TextOf(name), frame.Level + 1);
  return EnterSubdirectory(frame, name, Names().TextOf(name)) == Entrance::Entered ? Step::Entered : Step::Passed;
}

/// The directory's subdirectories have added their totals; now it adds its own to the run's, and all to its parent's.
void DirectoryViewWalk::LeaveDirectory(const Frame&) {
  KeptNode& node = nodes_[within_.back()];
  node.TotalFiles += node.Files;
  node.TotalSize += node.Size;
  RunTotals& totals = Run().Totals;
  totals.TotalSize += node.Size;
  totals.TotalFiles += node.Files;
  ++totals.TotalDirs;
  within_.pop_back();
  if (!within_.empty()) {
    KeptNode& parent = nodes_[within_.back()];
    parent.TotalFiles += node.TotalFiles;
    parent.TotalSize += node.TotalSize;
  }
}

void DirectoryViewWalk::ForEachListedNode(std::int32_t subLevel, const std::function<bool()>& stop,
                                          const std::function<void(const DirNode&)>& list) const {
  WalkPath path(Run().Start.Shown, Run().Start.OnDisk);
  std::wstring name;
  std::vector<WalkPath::Mark> marks;  // where the path of each level on the way ends
  for (const KeptNode& node : nodes_) {
    if (stop()) {
      return;
    }
    name.clear();
    names_.Read(node.Name).AppendText(name);
    const auto level = static_cast<std::size_t>(node.Level);
    if (level > 0) {
      path.GoBackTo(marks[level - 1]);
      path.Enter(name, name);
    }
    marks.resize(level);
    marks.push_back(path.Here());
    if (subLevel == 0 || node.Level <= subLevel) {
      list({.Name = name,
            .Path = path.Shown(),
            .Level = node.Level,
            .Files = node.Files,
            .Size = node.Size,
            .TotalFiles = node.TotalFiles,
            .TotalSize = node.TotalSize,
            .PathOnDisk = path.OnDisk()});
    }
  }
}

}  // namespace folivant
