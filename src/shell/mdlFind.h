// Input of the file lists: the rows of an open shell Find window (style 5), or of a file that holds one path per line
// (style 6). Both fill ScanTree::FoundList and then raise FindList once, unless the run was cancelled meanwhile.
#pragma once

#include "scan/ListingWriter.h"
#include "scan/Progress.h"

namespace folivant {

/// Style 5. Throws RuntimeError when the chosen window's program may not be read.
void PrintFromFind(ListingWriter& output, Progress& progress);
/// Style 6: reads the file named by ScanTree::StartPath. Throws RuntimeError when it, or a file that it names, is
/// missing, and when it has lines but none is a full path.
void PrintFromFileList(ListingWriter& output, Progress& progress);

}  // namespace folivant
