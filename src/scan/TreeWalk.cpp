#include "scan/TreeWalk.h"

#include <numeric>

#include "scan/Filter.h"
#include "scan/NameRules.h"

namespace folivant {

TreeWalk::TreeWalk(ListingRun& run) : DepthFirstWalk(run, ShortNamesFor(run)), filler_(run), sorter_(DigitsFor(run)) {}

void TreeWalk::ForEachEntry(const std::function<void(const FileRecord&)>& list) const {
  std::wstring names;
  for (const std::uint32_t entry : list_) {
    list(entries_.Read(entry, names));
  }
}

void TreeWalk::BeginDirectory(const Frame&) {
  texts_.Clear();
  found_.clear();
  sorter_.Clear();
  contents_.push_back({.FirstPending = pending_.size(), .NextPending = pending_.size(), .Kept = 0, .Size = {}});
}

/// Directories are kept whatever the filter says: what they hold may pass it.
void TreeWalk::TakeEntry(const Frame& frame, platform::FindData& entry) {
  const std::uint64_t lastWrite = entry.LastWrite;  // the filter converts it
  if (!entry.IsDirectory() && !MatchesFilter(entry, Run().Filter, Run().Patterns, Run().LocalOffset)) {
    return;
  }
  found_.push_back({.Entry = entries_.Add(filler_.FillFileRecord(entry, lastWrite, frame.Level, texts_)),
                    .Name = entry.IsDirectory() ? static_cast<std::uint32_t>(Names().Size() - 1) : kNoName});
  sorter_.Add(filler_.SortKey());
  ++contents_.back().Kept;
  contents_.back().Size += FileSizeOf(entry);
}

void TreeWalk::EndDirectory(const Frame&) {
  const std::size_t kept = contents_.back().Kept;
  order_.resize(kept);
  std::iota(order_.begin(), order_.end(), 0U);
  if (kept > 1) {
    sorter_.Sort(Run().Filter.OrderAZ, order_);
  }
  for (const std::uint32_t entry : order_) {
    pending_.push_back(found_[entry]);
  }
}

DepthFirstWalk::Step TreeWalk::Next(Frame& frame) {
  Contents& contents = contents_.back();
  if (contents.NextPending == pending_.size()) {
    return Step::Finished;
  }
  const PendingEntry entry = pending_[contents.NextPending++];
  list_.push_back(entry.Entry);
  if (entry.Name == kNoName || !MayDescend(frame.Level)) {
    return Step::Passed;
  }
  const Entrance entrance = EnterSubdirectory(frame, entry.Name, ProperName(Names().TextOf(entry.Name)));
  if (entrance == Entrance::Unreadable) {
    list_.pop_back();  // nothing was added behind it
  }
  return entrance == Entrance::Entered ? Step::Entered : Step::Passed;
}

void TreeWalk::LeaveDirectory(const Frame& frame) {
  const Contents& contents = contents_.back();
  Run().Totals.TotalSize += contents.Size;
  Run().Totals.TotalFiles += static_cast<std::int32_t>(contents.Kept - frame.Subdirectories);
  ++Run().Totals.TotalDirs;
  pending_.resize(contents.FirstPending);
  contents_.pop_back();
}

}  // namespace folivant
