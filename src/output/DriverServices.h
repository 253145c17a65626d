// What every writer may ask of the run: expanded header and footer, drive label, totals and free-space sentences.
#pragma once

#include <string>
#include <vector>

#include "scan/ListingRun.h"

namespace folivant {

enum class HeaderFooter { Header, Footer };

/// The "Header" or "Footer" setting with %p %l %f %g %d %t %n replaced, in this order and each everywhere; a
/// replacement is scanned for the placeholders that follow in the order. In the file lists %p, %l, %f and %g become
/// empty. Files have no pages: their `page` is 0.
std::wstring ExpandHeaderFooter(HeaderFooter which, const ListingRun& run, std::int16_t page = 0);
/// The volume label of a path that begins with a drive letter, re-cased by ProperName, or the language's text for none.
std::wstring DriveLabel(const std::wstring& root, const Messages& texts);
std::wstring TotalsLine(const ListingRun& run);
/// Empty when the system cannot tell.
std::wstring FreeSpaceLine(const std::wstring& path, const Messages& texts);

/// The sentences that end the listing of the run's style, in order: the totals in styles 1 to 3, the free space (also
/// when it is empty) in styles 0 to 3.
std::vector<std::wstring> ClosingSentences(const ListingRun& run);

}  // namespace folivant
