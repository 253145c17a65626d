// The walk that lists each directory as it is read and keeps none of them.
#include "scan/StreamingWalk.h"

#include <numeric>

#include "scan/Filter.h"
#include "ui/ValueText.h"

namespace folivant {

StreamingWalk::StreamingWalk(ListingRun& run, ListingWriter& output)
    : DepthFirstWalk(run, ShortNamesFor(run)), output_(output), filler_(run), sorter_(DigitsFor(run)) {}

void StreamingWalk::BeginDirectory(const Frame&) {
  texts_.Clear();
  records_.clear();
  sorter_.Clear();
  kept_.emplace_back();
}

void StreamingWalk::TakeEntry(const Frame& frame, platform::FindData& entry) {
  const std::uint64_t lastWrite = entry.LastWrite;  // the filter converts it
  if (!MatchesFilter(entry, Run().Filter, Run().Patterns, Run().LocalOffset)) {
    return;
  }
  records_.push_back(filler_.FillFileRecord(entry, lastWrite, frame.Level, texts_));
  sorter_.Add(filler_.SortKey());
  ++kept_.back().Count;
  kept_.back().Size += FileSizeOf(entry);
}

void StreamingWalk::EndDirectory(const Frame& frame) {
  SortEntries();
  Names().SortFrom(frame.FirstName, Run().Filter.OrderAZ);
  RaiseEvent(frame);
}

void StreamingWalk::SortEntries() {
  order_.resize(records_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  if (records_.size() > 1) {
    sorter_.Sort(Run().Filter.OrderAZ, order_);
  }
}

void StreamingWalk::RaiseEvent(const Frame& frame) {
  const Kept& kept = kept_.back();
  summary_ = std::to_wstring(kept.Count) + L' ' + Run().Texts[kept.Count == 1 ? TextId::File : TextId::Files] + L", ";
  AppendSize(kept.Size, Run().Texts, summary_);
  const ListingStyle style = Run().Format.ListingStyle;
  const DirectoryListing listing{.Path = Path().Shown(),
                                 .Level = frame.Level,
                                 .Records = records_,
                                 .Order = order_,
                                 .Summary = summary_,
                                 .SubdirectoriesFollow = style == ListingStyle::IncludeSubdirectories,
                                 .PathOnDisk = Path().OnDisk()};
  if (style == ListingStyle::FullPathList) {
    output_.ListPaths(listing);
  } else {
    output_.ListDirectory(listing);
  }
}

DepthFirstWalk::Step StreamingWalk::Next(Frame& frame) {
  const bool descends = Run().Format.ListingStyle != ListingStyle::NoSubdirectories && MayDescend(frame.Level);
  if (!descends || frame.NextName == frame.FirstName + frame.Subdirectories) {
    return Step::Finished;
  }
  const std::size_t name = frame.NextName++;
  return EnterSubdirectory(frame, name, Names().TextOf(name)) == Entrance::Entered ? Step::Entered : Step::Passed;
}

void StreamingWalk::LeaveDirectory(const Frame& frame) {
  const Kept& kept = kept_.back();
  Run().Totals.TotalSize += kept.Size;
  Run().Totals.TotalFiles += static_cast<std::int32_t>(kept.Count);
  if (kept.Count > frame.Subdirectories) {
    ++Run().Totals.TotalDirs;
  }
  kept_.pop_back();
}

}  // namespace folivant
