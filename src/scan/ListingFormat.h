// The listing style, depth limit and column switches as a record.
#pragma once

#include <cstdint>

namespace folivant {

/// Codes as they are stored and as the preview pictures are numbered.
enum class ListingStyle : std::int16_t {
  NoSubdirectories = 0,
  IncludeSubdirectories = 1,
  TreeStyle = 2,
  DirectoryView = 3,
  FullPathList = 4,
  FindWindow = 5,
  PathListFile = 6,  ///< only a file as argument selects it; never stored
};

/// Entry columns, in the order in which they are written and stored.
struct FileColumns {
  bool Name = false, DosName = false, Size = false, Date = false, Attributes = false;
};
/// Directory-view columns, in the order in which they are written and stored.
struct DirectoryColumns {
  bool Files = false, Size = false, TotalFiles = false, TotalSize = false;
};

struct ListingFormat {
  folivant::ListingStyle ListingStyle = folivant::ListingStyle::IncludeSubdirectories;
  std::int32_t SubLevel = 0;  ///< deepest level listed; 0 is no limit, a negative one stops every descent
  FileColumns Files;
  DirectoryColumns Directories;

  bool IsFileList() const {
    return ListingStyle == folivant::ListingStyle::FindWindow || ListingStyle == folivant::ListingStyle::PathListFile;
  }
  /// Whether a run collects the whole tree before it writes, and then writes it as one table.
  bool IsCollected() const {
    return ListingStyle == folivant::ListingStyle::TreeStyle || ListingStyle == folivant::ListingStyle::DirectoryView;
  }
};

}  // namespace folivant
