#include "output/Page.h"

#include <utility>

namespace folivant {
namespace {

/// Enough for all that repeats on the pages of a listing; a full memory starts again.
constexpr std::size_t kRememberedTexts = 4096;

platform::PageFont InBold(platform::PageFont font) {
  font.Bold = true;
  return font;
}

}  // namespace

Page::Page(std::unique_ptr<platform::PageSurface> surface, const platform::PageFont& listing,
           const platform::PageFont& headerFooter)
    : surface_(std::move(surface)), fonts_{listing, InBold(listing), headerFooter} {
  for (const Face face : {Face::HeaderFooter, Face::Heading, Face::Listing}) {
    Select(face);
    lineHeights_[Index(face)] = surface_->TextHeight();
  }
}

void Page::Select(Face face) {
  face_ = face;
  surface_->SelectFont(fonts_[Index(face)]);
}

double Page::RememberedWidthOf(std::wstring_view text) const {
  Widths& widths = widths_[Index(face_)];
  if (const auto found = widths.find(text); found != widths.end()) {
    return found->second;
  }
  if (widths.size() == kRememberedTexts) {
    widths.clear();
  }
  return widths.emplace(text, WidthOf(text)).first->second;
}

void Page::NextPage() {
  surface_->NewPage();
  y_ = 0;
}

}  // namespace folivant
