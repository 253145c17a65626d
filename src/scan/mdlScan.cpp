#include "scan/mdlScan.h"

#include "app/mdlVars.h"
#include "output/EntryFormatting.h"
#include "platform/Clock.h"
#include "scan/DirectoryViewWalk.h"
#include "scan/DirectoryWalk.h"
#include "scan/NameRules.h"
#include "shell/mdlFind.h"

namespace folivant {
namespace {

using mdlVars::Tree;

/// Leaves nothing behind, however a run ends: an error closes what the writer has open, and the lists are emptied.
class RunGuard {
 public:
  RunGuard(ListingWriter& output, Progress& progress) : output_(output) { mdlVars::Run().Watcher = &progress; }
  RunGuard(const RunGuard&) = delete;
  RunGuard& operator=(const RunGuard&) = delete;
  ~RunGuard() {
    if (!ended_) {
      output_.AbortListing();
    }
    Tree.ReleaseLists();
    mdlVars::Run().Watcher = nullptr;
  }
  void End() {
    if (!Tree.Cancelled) {
      output_.EndListing();
      ended_ = true;
    }
  }

 private:
  ListingWriter& output_;
  bool ended_ = false;
};

void ChooseDatePattern() {
  if (const std::wstring_view pattern = DatePatternOf(mdlVars::General.DateFormat); !pattern.empty()) {
    mdlVars::DatePattern = pattern;
  }
}

void ListDirectoryView(const WalkSettings& settings, ListingWriter& output, Progress& progress) {
  DirectoryViewWalk(settings, Tree, progress).ScanDirectoryView();
  const auto stop = [&] {
    progress.LetEventsThrough();
    Tree.Cancelled |= progress.Cancelled();
    return Tree.Cancelled;
  };
  ForEachListedNode(Tree, settings.Format.SubLevel, stop,
                    [&](const DirNode& node) { output.DirectoryViewEntry(node); });
}

void ListTree(const WalkSettings& settings, ListingWriter& output, Progress& progress) {
  output.BeginTree(Tree.StartPath);
  DirectoryWalk walk(settings, Tree, output, progress);  // owns the size text that the directories' records share
  walk.ScanDirectory();
  for (const std::uint32_t index : Tree.TreeList) {  // does not look at the cancel flag, on purpose
    progress.LetEventsThrough();
    const FileRecord& record = Tree.TreeRecords[index];
    if (record.Level > kHiddenLevel) {
      output.TreeEntry(record);
    }
  }
}

}  // namespace

bool SetStartPath(const std::wstring& path) {
  LongPath found = GetLongPath(path);
  if (found.Shown.empty()) {
    return false;
  }
  Tree.StartPath = std::move(found.Shown);
  Tree.StartPathOnDisk = std::move(found.OnDisk);
  if (mdlVars::Format.IsFileList()) {
    mdlVars::Format.ListingStyle = ListingStyle::NoSubdirectories;
  }
  return true;
}

void RunListing(ListingWriter& output, Progress& progress) {
  ChooseDatePattern();
  progress.LetEventsThrough();
  Tree.ResetTotals();
  mdlVars::PageNumber = 0;
  RunGuard guard(output, progress);
  output.BeginListing();
  const NamePatterns patterns = mdlVars::Filter.NameOn ? NamePatterns(mdlVars::Filter.FilterName) : NamePatterns();
  const WalkSettings settings{mdlVars::Filter,        patterns,       mdlVars::Format,
                              mdlVars::General,       mdlVars::Texts, mdlVars::DatePattern,
                              platform::LocalOffset()};
  switch (mdlVars::Format.ListingStyle) {
    case ListingStyle::DirectoryView:
      ListDirectoryView(settings, output, progress);
      break;
    case ListingStyle::TreeStyle:
      ListTree(settings, output, progress);
      break;
    case ListingStyle::FindWindow:
      PrintFromFind(output, progress);
      break;
    case ListingStyle::PathListFile:
      PrintFromFileList(output, progress);
      break;
    case ListingStyle::NoSubdirectories:
    case ListingStyle::IncludeSubdirectories:
    case ListingStyle::FullPathList:
    default:
      DirectoryWalk(settings, Tree, output, progress).ScanDirectory();
      break;
  }
  Tree.Cancelled |= progress.Cancelled();
  guard.End();
}

}  // namespace folivant
