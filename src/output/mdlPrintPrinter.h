// The page writer (output kind 5): it draws a listing on the pages of a printer, with header, footer and column
// captions on every page. Columns are those of the text writer; where things stand is the page layout's matter.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "output/Columns.h"
#include "output/ListingRun.h"
#include "output/Page.h"
#include "output/PageLayout.h"
#include "scan/ListingWriter.h"

namespace folivant {

class PrinterWriter final : public ListingWriter {
 public:
  /// `run` is used, not owned. Pages are begun with the settings that it shows when a listing begins.
  explicit PrinterWriter(const ListingRun& run) : run_(run) {}

  void BeginListing() override;
  void ListDirectory(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(std::span<const FoundItem> rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  void BeginPages(const std::wstring& listed);
  void StartPage();
  void DrawCentred(std::wstring_view text, double y);
  /// Whether a new page was begun, because less than these line heights were left.
  bool BreakPage(double linesToKeepFree);
  /// The same between lines of the listing: events get through at the new page, and may cancel the run.
  void BreakPageInBody(double linesToKeepFree);
  void BreakPageBeforeLine();
  bool Cancelled() const;

  void DrawStyleCaptions();
  void DrawEntryCaptions();
  void DrawDirectoryCaptions();
  void DrawFoundCaptions();
  /// At, or ending at, an offset from the line origin; a right-aligned caption keeps three blanks free before it.
  void DrawCaption(double position, Alignment alignment, std::wstring_view caption);
  void DrawCell(double position, Alignment alignment, std::wstring_view text);

  void DirectoryHeading(std::wstring_view path);
  void DirectorySummary(std::wstring_view summary);
  void EntryLine(const FileRecord& entry, std::wstring_view name);
  void FullPathLines(const DirectoryListing& directory);
  void FoundLine(const FoundItem& row);
  void ClosingLine(std::wstring_view text);

  void DrawAtOrigin(std::wstring_view text) { page_->Draw(layout_.Origin, text); }
  void DrawName(double x, std::wstring_view name, double width);
  std::wstring_view Indented(std::int32_t level, std::wstring_view name);

  const ListingRun& run_;
  std::unique_ptr<Page> page_;  ///< from the beginning of a listing to its end
  PageLayout layout_;
  std::wstring text_;  ///< the line being put together
};

}  // namespace folivant
