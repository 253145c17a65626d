// The loop that all walks share. It keeps a stack of its own instead of calling itself, so that the depth of a tree is
// not limited by the thread's stack.
#include "scan/DepthFirstWalk.h"

namespace folivant {

DepthFirstWalk::DepthFirstWalk(ListingRun& run, platform::ShortNames shortNames)
    : run_(run),
      shortNames_(shortNames),
      path_(run.Start.Shown, run.Start.OnDisk),
      names_(run.General.NaturalOrder ? platform::Digits::AsNumbers : platform::Digits::AsCharacters) {}

void DepthFirstWalk::Walk() {
  constexpr std::int32_t kWholeBar = 100;
  OpenDirectory(0, kWholeBar, false);
  while (!frames_.empty()) {
    path_.GoBackTo(frames_.back().Path);
    const Step step = Next(frames_.back());
    if (step == Step::Finished) {
      Leave();
    }
    if (step != Step::Entered && !frames_.empty() && run_.IsCancelled()) {
      return;
    }
  }
}

bool DepthFirstWalk::MayDescend(std::int32_t level) const {
  return run_.Format.SubLevel == 0 || level < run_.Format.SubLevel;
}

DepthFirstWalk::Entrance DepthFirstWalk::EnterSubdirectory(const Frame& parent, std::size_t name,
                                                           std::wstring_view shownName) {
  path_.Enter(shownName, names_.TextOf(name));
  const bool isLink = names_[name].IsLink;
  if (isLink && (!run_.General.FollowLinks || ancestors_.Contain(path_))) {
    return Entrance::PassedBy;
  }
  const bool opened = OpenDirectory(parent.Level + 1, DivideShare(parent.Share, parent.Subdirectories), isLink);
  return opened ? Entrance::Entered : Entrance::Unreadable;
}

/// Reads the directory at the end of path_ and puts its frame on the stack; false when it cannot be opened.
bool DepthFirstWalk::OpenDirectory(std::int32_t level, std::int32_t share, bool isLink) {
  run_.Watcher.ShowDirectory(path_.Shown());
  run_.Watcher.LetEventsThrough();
  platform::FindFiles files(path_.OnDisk(), shortNames_);
  if (!files.Opened()) {
    if (!isLink || !files.Denied()) {  // every profile has links that nobody may enter, for the programs of old days
      run_.AddUnread(path_.OnDisk(), files.Reason());
    }
    return false;
  }
  Frame frame{.Path = path_.Here(),
              .Level = level,
              .Share = share,
              .FirstName = names_.Size(),
              .NextName = names_.Size(),
              .Subdirectories = 0};
  BeginDirectory(frame);
  for (platform::FindData entry; files.Next(entry);) {
    run_.Watcher.LetEventsThrough();
    if (entry.IsDirectory()) {
      if (run_.Filter.NameOn && run_.Patterns.LeaveOut(entry.Name)) {
        continue;
      }
      names_.Push(entry.Name, platform::StandsForAnother(entry.Attributes, entry.ReparseTag));
    }
    TakeEntry(frame, entry);
  }
  if (files.Failed()) {
    run_.AddUnread(path_.OnDisk(), files.Reason());
  }
  frame.Subdirectories = names_.Size() - frame.FirstName;
  EndDirectory(frame);
  ancestors_.Push(frame.Path);
  frames_.push_back(frame);
  return true;
}

void DepthFirstWalk::Leave() {
  const Frame& frame = frames_.back();
  if (frame.Subdirectories == 0) {
    run_.Watcher.SetProgress(frame.Share);
  }
  LeaveDirectory(frame);
  names_.CutTo(frame.FirstName);
  ancestors_.Pop();
  frames_.pop_back();
}

}  // namespace folivant
