// What every walk has in common: the directories that it is in, the names of those still to be entered, links that lead
// back, shares of the progress bar, cancelling. What becomes of the entries is the concern of each kind of walk: it
// overrides the five steps at the end of the class.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/FindFiles.h"
#include "scan/DirectoryStack.h"
#include "scan/ListingRun.h"
#include "scan/WalkPath.h"

namespace folivant {

class DepthFirstWalk {
 public:
  DepthFirstWalk(const DepthFirstWalk&) = delete;
  DepthFirstWalk& operator=(const DepthFirstWalk&) = delete;
  virtual ~DepthFirstWalk() = default;

  /// Walks from the run's start path, depth-first. A directory that cannot be read is skipped silently but for
  /// ListingRun::Unread. Ends early, without leaving the directories that it is still in, once the run is
  /// cancelled.
  void Walk();

 protected:
  /// A directory whose children are being visited.
  struct Frame {
    WalkPath::Mark Path;
    std::int32_t Level = 0;
    std::int32_t Share = 0;          ///< of the progress bar, percent points
    std::size_t FirstName = 0;       ///< of its subdirectories, in Names
    std::size_t NextName = 0;        ///< the next one to enter, for walks that enter them in their order
    std::size_t Subdirectories = 0;  ///< how many it has
  };
  /// What became of the topmost directory: a child was entered, an entry or unreadable child was passed, or all is
  /// done.
  enum class Step { Entered, Passed, Finished };
  /// What came of the attempt to enter a subdirectory. A link is passed by when links are not followed, or when it
  /// leads to a directory that the walk is in.
  enum class Entrance { Entered, PassedBy, Unreadable };

  /// `run` outlives the walk.
  DepthFirstWalk(ListingRun& run, platform::ShortNames shortNames);

  ListingRun& Run() const { return run_; }
  const WalkPath& Path() const { return path_; }
  NameStack& Names() { return names_; }
  bool MayDescend(std::int32_t level) const;
  /// Reads the subdirectory with that number in Names; progress shows it as `shownName`. `parent` may be gone
  /// afterwards.
  Entrance EnterSubdirectory(const Frame& parent, std::size_t name, std::wstring_view shownName);

  /// A directory has been opened, and its entries follow.
  virtual void BeginDirectory(const Frame& frame) = 0;
  /// One of its entries; a directory's name is the last one in Names by then.
  virtual void TakeEntry(const Frame& frame, platform::FindData& entry) = 0;
  /// All its entries were taken.
  virtual void EndDirectory(const Frame& frame) = 0;
  /// Enters one of its subdirectories, or passes one entry. `frame` may be gone once something was entered.
  virtual Step Next(Frame& frame) = 0;
  /// All its children have been visited.
  virtual void LeaveDirectory(const Frame& frame) = 0;

 private:
  bool OpenDirectory(std::int32_t level, std::int32_t share, bool isLink);
  void Leave();

  ListingRun& run_;
  const platform::ShortNames shortNames_;
  WalkPath path_;
  std::vector<Frame> frames_;
  NameStack names_;
  Ancestors ancestors_;
};

}  // namespace folivant
