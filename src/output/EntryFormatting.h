// The sentences of a listing: its totals, the free space, the filter.
#pragma once

#include <string>

#include "platform/Files.h"
#include "scan/FilterSettings.h"
#include "scan/ListingRun.h"
#include "ui/Messages.h"

namespace folivant {

/// "12 files, 3 directories, 1,204 kb"
std::wstring TotalsSentence(const RunTotals& totals, const Messages& texts);
/// "4,882 kb free of 19 Mb."
std::wstring FreeSpaceSentence(const platform::DiskSpace& space, const Messages& texts);

/// The filter in one line, for "%g", the XML `filter` element and the main window: "*.txt, >1000 kb, 9/25/1999 -
/// 9/30/1999". Attribute choices never appear: there are no words for them.
std::wstring FilterDescription(const FilterSettings& filter, const Messages& texts);

}  // namespace folivant
