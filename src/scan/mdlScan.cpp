// One run from its first event to its last, whatever happens in between.
#include "scan/mdlScan.h"

#include "platform/Clock.h"
#include "scan/DirectoryViewWalk.h"
#include "scan/NameRules.h"
#include "scan/StreamingWalk.h"
#include "scan/TreeWalk.h"
#include "ui/ValueText.h"

namespace folivant {
namespace {

/// Closes what the writer has open, however a run ends.
class ListingGuard {
 public:
  ListingGuard(ListingRun& run, ListingWriter& output) : run_(run), output_(output) {}
  ListingGuard(const ListingGuard&) = delete;
  ListingGuard& operator=(const ListingGuard&) = delete;
  ~ListingGuard() {
    if (!ended_) {
      output_.AbortListing();
    }
  }
  void End() {
    if (!run_.IsCancelled()) {
      output_.EndListing();
      ended_ = true;
    }
  }

 private:
  ListingRun& run_;
  ListingWriter& output_;
  bool ended_ = false;
};

void Prepare(ListingRun& run) {
  if (const std::wstring_view pattern = DatePatternOf(run.General.DateFormat); !pattern.empty()) {
    run.DatePattern = pattern;
  }
  run.Patterns = run.Filter.NameOn ? NamePatterns(run.Filter.FilterName) : NamePatterns();
  run.LocalOffset = platform::LocalOffset();
  run.Totals = {};
  run.Cancelled = false;
  run.Unread.clear();
}

void ListDirectoryView(ListingRun& run, ListingWriter& output) {
  output.BeginDirectoryView();
  DirectoryViewWalk walk(run);
  walk.Walk();
  const auto stop = [&run] {
    run.Watcher.LetEventsThrough();
    return run.IsCancelled();
  };
  walk.ForEachListedNode(run.Format.SubLevel, stop, [&](const DirNode& node) { output.DirectoryViewEntry(node); });
}

void ListTree(ListingRun& run, ListingWriter& output) {
  output.BeginTree(run.Start.Shown);
  TreeWalk walk(run);
  walk.Walk();
  walk.ForEachEntry([&](const FileRecord& entry) {  // all of it: a cancelled run is told by its end
    run.Watcher.LetEventsThrough();
    output.TreeEntry(entry);
  });
}

void ListRows(ListingRun& run, ListingWriter& output, const FoundRows& rows) {
  if (!run.IsCancelled()) {
    run.Totals.TotalFiles = static_cast<std::int32_t>(rows.Items.size());
    output.FindList(rows);
  }
}

}  // namespace

bool SetStartPath(const std::wstring& path, LongPath& start, ListingFormat& format) {
  LongPath found = GetLongPath(path);
  if (found.Shown.empty()) {
    return false;
  }
  start = std::move(found);
  if (format.IsFileList()) {
    format.ListingStyle = ListingStyle::NoSubdirectories;
  }
  return true;
}

void RunListing(ListingRun& run, ListingWriter& output, FoundRowSource& rows) {
  run.Watcher.LetEventsThrough();
  Prepare(run);
  ListingGuard guard(run, output);
  output.BeginListing(run);
  switch (run.Format.ListingStyle) {
    case ListingStyle::DirectoryView:
      ListDirectoryView(run, output);
      break;
    case ListingStyle::TreeStyle:
      ListTree(run, output);
      break;
    case ListingStyle::FindWindow:
      ListRows(run, output, rows.PrintFromFind(run));
      break;
    case ListingStyle::PathListFile:
      ListRows(run, output, rows.PrintFromFileList(run));
      break;
    case ListingStyle::NoSubdirectories:
    case ListingStyle::IncludeSubdirectories:
    case ListingStyle::FullPathList:
    default:
      StreamingWalk(run, output).Walk();
      break;
  }
  guard.End();
}

}  // namespace folivant
