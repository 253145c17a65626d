// The rows of the file lists (styles 5 and 6), and what a run asks of whoever finds them. The run walks no directory
// for them; shell/mdlFind answers.
#pragma once

#include <string>
#include <vector>

#include "scan/FileRecord.h"

namespace folivant {

struct ListingRun;

/// One row, as texts.
struct FoundItem {
  std::wstring Name;
  std::wstring InFolder;
  std::wstring Size;
  std::wstring Modified;
  std::wstring PathOnDisk = {};  ///< of a file that a path list names; a Find window tells no more than the texts
  FileRecord Entry = {};         ///< the same file; its names are empty
};

struct FoundRows {
  std::wstring Title;  ///< heading of the list: the title of the Find window that was chosen last
  std::vector<FoundItem> Items;
};

class FoundRowSource {
 public:
  virtual ~FoundRowSource() = default;
  /// Style 5: the rows of an open Find window. Sets ListingRun::Cancelled when the user ends the choice or the reading;
  /// what it returns is not listed then. Throws RuntimeError when the window's program may not be read.
  virtual FoundRows PrintFromFind(ListingRun& run) = 0;
  /// Style 6: the files that the file at the run's start path names. Throws RuntimeError when it, or a file that it
  /// names, cannot be read.
  virtual FoundRows PrintFromFileList(ListingRun& run) = 0;
};

}  // namespace folivant
