// The pages of one printed listing: how lines are drawn on them, and what every page repeats (header, footer,
// captions).
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "output/Columns.h"
#include "output/Page.h"
#include "output/PageLayout.h"
#include "scan/ListingRun.h"

namespace folivant {

/// Where each of kFurtherColumns stands; a right-aligned one ends there.
inline constexpr std::array<double EntryPositions::*, kFurtherColumns.size()> kColumnPositions = {
    &EntryPositions::DosName, &EntryPositions::SizeEnd, &EntryPositions::Date, &EntryPositions::Attributes};

/// Positions are twips from the line origin. A text that is aligned to the right ends at its position.
class ListingPages {
 public:
  /// Opens the printer and lays out the page; no document begins yet. `run` outlives the pages. Throws RuntimeError
  /// (Print, UseMargins, UseFont) when nothing could be printed.
  explicit ListingPages(ListingRun& run);

  /// Begins the document and its first page. `listed` is what the printer's queue says about it.
  void BeginDocument(const std::wstring& listed);
  void EndDocument() { page_->EndDocument(); }
  void AbortDocument() noexcept { page_->AbortDocument(); }

  const PageLayout& Layout() const { return layout_; }
  /// Measures in the selected font.
  const Page& Measure() const { return *page_; }
  void Select(Page::Face face) { page_->Select(face); }
  void EndLine() { page_->EndLine(); }

  /// Goes to the next page when less than these line heights are left. Whether it did.
  bool BreakPage(double linesToKeepFree);
  /// The same between lines of the listing: events get through at the new page, and may cancel the run.
  void BreakPageInBody(double linesToKeepFree);

  void Draw(double position, std::wstring_view text, Alignment alignment = Alignment::Left);
  /// Shortened where it is wider than `width`.
  void DrawName(double position, std::wstring_view name, double width);
  void DrawEntryCaptions();
  void DrawFoundCaptions();

 private:
  void StartPage();
  void DrawCentred(std::wstring_view text, double y);
  void DrawStyleCaptions();
  void DrawDirectoryCaptions();
  void DrawCaption(double position, Alignment alignment, std::wstring_view caption);

  ListingRun& run_;
  std::unique_ptr<Page> page_;
  PageLayout layout_;
  std::int16_t pageNumber_ = 0;  ///< of the page that was started last, from 1
};

}  // namespace folivant
