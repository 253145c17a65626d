#include "output/PageLayout.h"

#include <cmath>
#include <utility>

#include "ui/PageMargins.h"

namespace folivant {
namespace {

platform::PageFont ListingFont(const GeneralSettings& general) {
  return {general.FontName, static_cast<double>(general.FontSize), false};
}

platform::PageFont HeaderFooterFont(const GeneralSettings& general) {
  if (general.Font80HF) {
    return {general.FontName, general.FontSize * 4 / 5.0, false};
  }
  return {general.FontNameHF, static_cast<double>(general.FontSizeHF), false};
}

}  // namespace

std::unique_ptr<Page> MakePage(std::unique_ptr<platform::PageSurface> surface, const GeneralSettings& general) {
  return std::make_unique<Page>(std::move(surface), ListingFont(general), HeaderFooterFont(general));
}

PageLayout LayOut(const Page& page, const GeneralSettings& general, const ListingFormat& format) {
  const platform::PageArea area = page.Area();
  const PageMargins margins = MarginsInTwips(general);
  PageLayout at;
  at.LineHeight = page.LineHeight();
  at.Origin = margins.Left - area.LeftOffset;
  at.UsableWidth = area.Width - margins.Left - margins.Right + area.LeftOffset + area.RightOffset;
  // Without the offsets, on purpose: a heading gets a little less than the line could hold.
  at.HeadingWidth = std::nearbyint(area.Width - margins.Left - margins.Right);
  at.HeaderTop = margins.Top - area.TopOffset;
  at.BodyBottom = area.Height - margins.Bottom + area.BottomOffset;
  at.Entries = PlaceEntryColumns(format.Files, at.UsableWidth, page);
  at.Directories = PlaceDirectoryColumns(format.Directories, at.UsableWidth, page);
  at.Found = PlaceFoundColumns(at.Origin, at.UsableWidth, page);
  return at;
}

}  // namespace folivant
