// The listing run: who feeds whom. It resets the run's state, lets the walk of the current style raise its events, and
// leaves everything closed, also after an error.
#pragma once

#include <string>

#include "scan/FoundRows.h"
#include "scan/ListingFormat.h"
#include "scan/ListingRun.h"
#include "scan/ListingWriter.h"

namespace folivant {

/// Makes `path` the directory to list: normalises it with GetLongPath and turns style 5 or 6 into 0. False, and nothing
/// changed, when the path is not usable.
bool SetStartPath(const std::wstring& path, LongPath& start, ListingFormat& format);

/// One whole listing run in the style of `run`. `rows` is asked in styles 5 and 6. What the run learned stands in `run`
/// afterwards. Throws RuntimeError after closing what was open.
void RunListing(ListingRun& run, ListingWriter& output, FoundRowSource& rows);

}  // namespace folivant
