// The listing run: who feeds whom. It resets the run's state, lets the walk of the current style raise its events, and
// leaves everything closed and empty, also after an error.
#pragma once

#include <string>

#include "scan/ListingWriter.h"
#include "scan/Progress.h"

namespace folivant {

/// Makes `path` the directory to list: normalises it with GetLongPath and turns style 5 or 6 into 0. False, and nothing
/// changed, when the path is not usable.
bool SetStartPath(const std::wstring& path);

/// One whole listing run of mdlVars' current style, start path, filter and format. `progress` lives for the run and may
/// cancel it. Throws RuntimeError after closing what was open and emptying the lists.
void RunListing(ListingWriter& output, Progress& progress);

}  // namespace folivant
