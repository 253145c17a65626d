// Where everything on the pages of a listing stands, worked out on the printer before anything is printed, and whether
// a page holds anything at all.
#pragma once

#include <memory>

#include "base/GeneralSettings.h"
#include "output/Page.h"
#include "output/PageColumns.h"
#include "scan/ListingFormat.h"
#include "ui/Messages.h"

namespace folivant {

/// Positions and widths are twips, from the upper left corner of the printable area; columns count from the line
/// origin.
struct PageLayout {
  double Origin = 0;        ///< where lines begin: the left margin
  double UsableWidth = 0;   ///< from there to the right margin
  double HeadingWidth = 0;  ///< for a directory's heading
  double HeaderTop = 0;     ///< the top margin
  double FirstLine = 0;     ///< where the line after the captions begins
  double BodyBottom = 0;    ///< the bottom margin
  double LineHeight = 0;    ///< of the listing font
  EntryPositions Entries;
  DirectoryPositions Directories;
  FoundPositions Found;
};

/// Line heights that an ordinary line leaves free above the bottom margin, for the footer.
inline constexpr double kLinesBelowLine = 4;

/// A page in the fonts of the listing. Throws RuntimeError (UseFont) for a font size below one point or beyond the
/// sheet, which no device can measure.
std::unique_ptr<Page> MakePage(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general);

/// `page` has the listing font selected. Throws RuntimeError when no line of such a listing stands on a page:
/// UseMargins, which names them in the words of `texts`, when one would without margins, and UseFont otherwise.
PageLayout LayOut(const Page& page, const GeneralSettings& general, const ListingFormat& format, const Messages& texts);

}  // namespace folivant
