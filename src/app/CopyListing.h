// The listing as plain text on the clipboard.
#pragma once

#include "output/mdlPrint.h"
#include "scan/FoundRows.h"
#include "scan/Progress.h"

namespace folivant {

/// Makes the listing of the settings of the moment as a run to a text file would make it, whatever output is chosen,
/// and puts it on the clipboard with every character that it has. No file is written and no setting is changed. Throws
/// like RunListing and platform::CopyToClipboard. A listing that fails or is cancelled leaves the clipboard as it is.
void CopyListing(OutputDriver& output, FoundRowSource& rows, Progress& watcher);

}  // namespace folivant
