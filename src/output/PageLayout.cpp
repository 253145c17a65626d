// A page has room when the first line that lists something stands on the sheet: between the margins, above the lines
// that the page-break test keeps free, and wide enough for a name of one letter and dots. Less room than that gives a
// sheet for each line, or sheets without any.
#include "output/PageLayout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/Lengths.h"
#include "platform/RuntimeError.h"
#include "ui/Margins.h"

namespace folivant {
namespace {

constexpr double kTwipsPerPoint = 20;
/// Between the header's line and the body: two empty lines and the captions.
constexpr double kLinesBelowHeader = 3;
/// What is left of the name in the narrowest column that still tells something.
constexpr std::wstring_view kShortestName = L"W...";

platform::PageFont ListingFont(const GeneralSettings& general) {
  return {general.FontName, static_cast<double>(general.FontSize), false};
}

platform::PageFont HeaderFooterFont(const GeneralSettings& general) {
  if (general.Font80HF) {
    return {general.FontName, general.FontSize * 4 / 5.0, false};
  }
  return {general.FontNameHF, static_cast<double>(general.FontSizeHF), false};
}

[[noreturn]] void RefuseFont(const std::wstring& name, int points) {
  throw RuntimeError(FailedAction::UseFont, name + L", " + std::to_wstring(points), {}, 0);
}

/// Written so that a length that is no number never suffices.
bool Reaches(double length, double needed) {
  return length >= needed - kLengthSlack;
}

double SheetHeight(const platform::PageArea& area) {
  return area.Height + area.TopOffset + area.BottomOffset;
}

/// The lines of the body that come before the first line that lists something.
double LinesBeforeEntries(const ListingFormat& format) {
  if (format.IsFileList()) {
    return 4;  // title, empty line, captions, empty line
  }
  switch (format.ListingStyle) {
    case ListingStyle::DirectoryView:
    case ListingStyle::FullPathList:
      return 0;
    default:
      return 5;  // empty line, heading, empty line, captions, empty line
  }
}

bool HoldsALine(const PageLayout& at, const platform::PageArea& area, const ListingFormat& format) {
  const double before = LinesBeforeEntries(format);
  const double bottom = std::min(at.BodyBottom, area.Height + area.BottomOffset);
  const double free = std::max(kLinesBelowLine, before + 1) * at.LineHeight;
  return Reaches(at.FirstLine, -area.TopOffset) && Reaches(bottom, at.FirstLine + free);
}

/// The width of the column at the beginning of the line, where a name stands. Without names it is enough that the other
/// columns do not begin before the line.
bool HoldsColumns(const PageLayout& at, const Page& page, const ListingFormat& format) {
  const platform::PageArea area = page.Area();
  if (!Reaches(at.Origin, -area.LeftOffset)) {
    return false;
  }
  double width = at.UsableWidth;
  double needed = page.WidthOf(kShortestName);
  if (format.IsFileList()) {
    width = at.Found.NameWidth;
  } else if (format.ListingStyle == ListingStyle::DirectoryView) {
    width = at.Directories.NameWidth;
  } else if (format.ListingStyle != ListingStyle::FullPathList) {
    width = format.Files.Name ? at.Entries.NameWidth : at.Entries.DosName;
    needed = format.Files.Name ? needed : 0;
  }
  return Reaches(std::min(width, area.Width + area.RightOffset - at.Origin), needed);
}

PageLayout Arrange(const Page& page, const Margins& margins, const ListingFormat& format) {
  const platform::PageArea area = page.Area();
  PageLayout at;
  at.LineHeight = page.LineHeight();
  at.Origin = margins.Left - area.LeftOffset;
  at.UsableWidth = area.Width - margins.Left - margins.Right + area.LeftOffset + area.RightOffset;
  // Without the offsets: printed headings have always broken a little before the line could hold no more.
  at.HeadingWidth = std::nearbyint(area.Width - margins.Left - margins.Right);
  at.HeaderTop = margins.Top - area.TopOffset;
  at.FirstLine = at.HeaderTop + page.LineHeightOf(Page::Face::HeaderFooter) + kLinesBelowHeader * at.LineHeight;
  at.BodyBottom = area.Height - margins.Bottom + area.BottomOffset;
  at.Entries = PlaceEntryColumns(format.Files, at.UsableWidth, page);
  at.Directories = PlaceDirectoryColumns(format.Directories, at.UsableWidth, page);
  at.Found = PlaceFoundColumns(at.Origin, at.UsableWidth, page);
  return at;
}

}  // namespace

std::unique_ptr<Page> MakePage(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general) {
  const double highest = SheetHeight(surface->Area()) / kTwipsPerPoint;
  const auto isPrintable = [highest](int points) { return points >= 1 && points <= highest; };
  if (!isPrintable(general.FontSize)) {
    RefuseFont(general.FontName, general.FontSize);
  }
  if (!general.Font80HF && !isPrintable(general.FontSizeHF)) {
    RefuseFont(general.FontNameHF, general.FontSizeHF);
  }
  return std::make_unique<Page>(std::move(surface), ListingFont(general), HeaderFooterFont(general));
}

PageLayout LayOut(const Page& page, const GeneralSettings& general, const ListingFormat& format,
                  const Messages& texts) {
  const PageLayout asSet = Arrange(page, MarginsInTwips(general), format);
  if (HoldsALine(asSet, page.Area(), format) && HoldsColumns(asSet, page, format)) {
    return asSet;
  }
  const PageLayout widest = Arrange(page, Margins{}, format);
  const bool columns = HoldsColumns(widest, page, format);
  if (columns && HoldsALine(widest, page.Area(), format)) {
    throw RuntimeError(FailedAction::UseMargins, MarginsText(general, texts), {}, 0);
  }
  if (columns && !general.Font80HF && general.FontSizeHF > general.FontSize) {
    RefuseFont(general.FontNameHF, general.FontSizeHF);
  }
  RefuseFont(general.FontName, general.FontSize);
}

}  // namespace folivant
