// Where everything on the pages of a listing stands, worked out on the printer before anything is printed.
#pragma once

#include <memory>

#include "base/GeneralSettings.h"
#include "output/Page.h"
#include "output/PageColumns.h"
#include "scan/ListingFormat.h"

namespace folivant {

/// Positions and widths are twips, from the upper left corner of the printable area; columns count from the line
/// origin.
struct PageLayout {
  double Origin = 0;        ///< where lines begin: the left margin
  double UsableWidth = 0;   ///< from there to the right margin
  double HeadingWidth = 0;  ///< for a directory's heading
  double HeaderTop = 0;     ///< the top margin
  double BodyBottom = 0;    ///< the bottom margin
  double LineHeight = 0;    ///< of the listing font
  EntryPositions Entries;
  DirectoryPositions Directories;
  FoundPositions Found;
};

/// A page in the fonts of the listing.
std::unique_ptr<Page> MakePage(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general);

/// `page` has the listing font selected.
PageLayout LayOut(const Page& page, const GeneralSettings& general, const ListingFormat& format);

}  // namespace folivant
