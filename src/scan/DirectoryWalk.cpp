#include "scan/DirectoryWalk.h"

#include <numeric>

#include "output/EntryFormatting.h"
#include "scan/Filter.h"

namespace folivant {

DirectoryWalk::DirectoryWalk(const WalkSettings& settings, ScanTree& tree, ListingWriter& output, Progress& progress)
    : settings_(settings),
      tree_(tree),
      output_(output),
      progress_(progress),
      filler_(settings),
      path_(tree.StartPath, tree.StartPathOnDisk) {}

void DirectoryWalk::ScanDirectory() {
  constexpr std::int32_t kWholeBar = 100;
  OpenDirectory(0, kWholeBar);
  while (!frames_.empty()) {
    path_.GoBackTo(frames_.back().Path);
    const Step step = IsTree() ? ListNextEntry(frames_.back()) : EnterNextSubdirectory(frames_.back());
    if (step == Step::Finished) {
      Leave(frames_.back());
      frames_.pop_back();
      ancestors_.Pop();
    }
    if (step != Step::Entered && !frames_.empty() && Cancelled()) {
      return;
    }
  }
}

bool DirectoryWalk::MayDescend(std::int32_t level) const {
  return settings_.Format.SubLevel == 0 || level < settings_.Format.SubLevel;
}

bool DirectoryWalk::Cancelled() {
  tree_.Cancelled |= progress_.Cancelled();
  return tree_.Cancelled;
}

/// Reads the directory at the end of path_ and puts its frame on the stack; false when it cannot be opened.
bool DirectoryWalk::OpenDirectory(std::int32_t level, std::int32_t share) {
  progress_.ShowDirectory(path_.Shown());
  progress_.LetEventsThrough();
  platform::FindFiles files(path_.OnDisk(), filler_.ShortNames());
  if (!files.Opened()) {
    tree_.Unreadable = true;
    return false;
  }
  Frame frame{path_.Here(), level, share, names_.Size(), names_.Size(), 0, pending_.size(), pending_.size(), 0, {}};
  texts_.Clear();
  records_.clear();
  recordNames_.clear();
  sorter_.Clear();
  for (platform::FindData entry; files.Next(entry);) {
    progress_.LetEventsThrough();
    if (entry.IsDirectory()) {
      names_.Push(entry.Name, entry.IsLink());
    }
    const bool always = IsTree() && entry.IsDirectory();
    if (always || MatchesFilter(entry, settings_.Filter, settings_.Patterns, settings_.LocalOffset)) {
      KeepEntry(entry, frame);
    }
  }
  tree_.Unreadable |= files.Failed();
  frame.Subdirectories = names_.Size() - frame.FirstName;
  order_.resize(frame.Kept);
  std::iota(order_.begin(), order_.end(), 0U);
  if (frame.Kept > 1) {
    sorter_.Sort(settings_.Filter.OrderAZ, order_);
  }
  if (IsTree()) {
    AddPending(frame);
  } else {
    names_.SortFrom(frame.FirstName, settings_.Filter.OrderAZ);
    RaiseListDirectory(frame);
  }
  ancestors_.Push(frame.Path);
  frames_.push_back(frame);
  return true;
}

void DirectoryWalk::KeepEntry(platform::FindData& entry, Frame& frame) {
  FileRecord record = filler_.FillFileRecord(entry, frame.Level, IsTree() ? tree_.Texts : texts_);
  sorter_.Add(record.SortKey);
  record.SortKey = {};
  if (IsTree()) {
    recordNames_.push_back(entry.IsDirectory() ? static_cast<std::uint32_t>(names_.Size() - 1) : kNoName);
    tree_.TreeRecords.push_back(record);
  } else {
    records_.push_back(record);
  }
  ++frame.Kept;
  frame.Size += FileSizeOf(entry);
}

void DirectoryWalk::RaiseListDirectory(const Frame& frame) {
  const auto count = static_cast<std::int32_t>(frame.Kept);
  summary_ = std::to_wstring(count) + L' ' + settings_.Texts[count == 1 ? Text::File : Text::Files] + L", ";
  AppendSize(frame.Size, settings_.Texts, summary_);
  output_.ListDirectory({path_.Shown(), frame.Level, records_, order_, summary_});
}

void DirectoryWalk::AddPending(Frame& frame) {
  const auto first = static_cast<std::uint32_t>(tree_.TreeRecords.size() - frame.Kept);
  for (const std::uint32_t entry : order_) {
    pending_.push_back({first + entry, recordNames_[entry]});
  }
}

/// Streaming styles.
DirectoryWalk::Step DirectoryWalk::EnterNextSubdirectory(Frame& frame) {
  const bool descends = settings_.Format.ListingStyle != ListingStyle::NoSubdirectories && MayDescend(frame.Level);
  if (!descends || frame.NextName == frame.FirstName + frame.Subdirectories) {
    return Step::Finished;
  }
  const std::size_t name = frame.NextName++;
  path_.Enter(names_.TextOf(name), names_.TextOf(name));
  const bool leadsBack = names_[name].IsLink && ancestors_.Contain(path_);
  const bool entered = !leadsBack && OpenDirectory(frame.Level + 1, DivideShare(frame.Share, frame.Subdirectories));
  return entered ? Step::Entered : Step::Passed;
}

/// Tree style.
DirectoryWalk::Step DirectoryWalk::ListNextEntry(Frame& frame) {
  if (frame.NextPending == pending_.size()) {
    return Step::Finished;
  }
  const PendingEntry entry = pending_[frame.NextPending++];
  tree_.TreeList.push_back(entry.Record);
  if (entry.Name == kNoName || !MayDescend(frame.Level)) {
    return Step::Passed;
  }
  FileRecord& record = tree_.TreeRecords[entry.Record];
  path_.Enter(record.Name, names_.TextOf(entry.Name));
  if (names_[entry.Name].IsLink && ancestors_.Contain(path_)) {
    return Step::Passed;
  }
  if (OpenDirectory(frame.Level + 1, DivideShare(frame.Share, frame.Subdirectories))) {
    return Step::Entered;
  }
  record.Level = kHiddenLevel;
  return Step::Passed;
}

void DirectoryWalk::Leave(const Frame& frame) {
  if (frame.Subdirectories == 0) {
    progress_.SetProgress(frame.Share);
  }
  tree_.Totals.TotalSize += frame.Size;
  tree_.Totals.TotalFiles += static_cast<std::int32_t>(frame.Kept - (IsTree() ? frame.Subdirectories : 0));
  if (IsTree() || frame.Kept > frame.Subdirectories) {
    ++tree_.Totals.TotalDirs;
  }
  names_.CutTo(frame.FirstName);
  pending_.resize(frame.FirstPending);
}

}  // namespace folivant
