#include "output/mdlPrintPrinter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Lengths.h"
#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/DriverServices.h"
#include "output/NameShortening.h"
#include "output/Page.h"
#include "output/PageLayout.h"
#include "scan/ListingRun.h"
#include "ui/PageMargins.h"

namespace folivant {
namespace {

/// Line heights that a directory's heading leaves free: more than a line, so that none stands alone at the foot of a
/// page.
constexpr double kLinesBelowHeading = 10;
/// A small fixed indent in twips, kept as designed.
constexpr double kSummaryIndent = 20;
constexpr std::size_t kIndent = 3;
/// What a size caption keeps free before the end of its column.
constexpr std::wstring_view kAfterSizeCaption = L"   ";

/// Where each of kFurtherColumns stands; a right-aligned one ends there.
constexpr std::array<double EntryPositions::*, kFurtherColumns.size()> kEntryPlaces = {
    &EntryPositions::DosName, &EntryPositions::SizeEnd, &EntryPositions::Date, &EntryPositions::Attributes};

/// A caption that would run into the one before it loses its end.
std::wstring CutCaption(std::wstring_view caption, double room, const TextMeasure& measure) {
  constexpr std::wstring_view kDots = L"...";
  if (!IsLonger(measure.WidthOf(caption), room)) {
    return std::wstring(caption);
  }
  std::wstring cut(caption.substr(0, DrawnMeasure(measure).Fit(caption, room - measure.WidthOf(kDots))));
  return cut += kDots;
}

class PrinterWriter final : public ListingWriter {
 public:
  void BeginListing(ListingRun& run) override;
  void ListDirectory(const DirectoryListing& directory) override;
  void ListPaths(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override;
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(const FoundRows& rows) override;
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

  void DrawStyleCaptions();
  void DrawEntryCaptions();
  void DrawDirectoryCaptions();
  void DrawFoundCaptions();
  /// At, or ending at, an offset from the line origin; a right-aligned caption keeps three blanks free before it.
  void DrawCaption(double position, Alignment alignment, std::wstring_view caption);
  void DrawCell(double position, Alignment alignment, std::wstring_view text);

  void DirectoryHeading(std::wstring_view path);
  void DirectorySummary(std::wstring_view summary);
  void EntryLine(const FileRecord& entry, std::int32_t indent);
  void FoundLine(const FoundItem& row);
  void ClosingLine(std::wstring_view text);

  void DrawAtOrigin(std::wstring_view text) { page_->Draw(layout_.Origin, text); }
  void DrawName(double x, std::wstring_view name, double width);
  void StartIndented(std::int32_t level);

  // From the beginning of a listing to its end.
  ListingRun* run_ = nullptr;
  std::optional<EntryTexts> texts_;
  std::unique_ptr<Page> page_;
  PageLayout layout_;
  std::int16_t pageNumber_ = 0;  ///< of the page that was started last, from 1
  std::wstring text_;            ///< the line being put together
};

void PrinterWriter::BeginListing(ListingRun& run) {
  run_ = &run;
  texts_.emplace(run);
  pageNumber_ = 0;
  page_ = MakePage(platform::OpenPageSurface(PrintJobOf(run_->Printer, run_->General.Portrait)), run_->General);
  layout_ = LayOut(*page_, run_->General, run_->Format, run_->Texts);
  // The user chooses a Find window later, and the document is named after it.
  if (run_->Format.ListingStyle != ListingStyle::FindWindow) {
    BeginPages(run_->Start.Shown);
  }
}

/// `listed` is what the printer's queue says about the document.
void PrinterWriter::BeginPages(const std::wstring& listed) {
  page_->BeginDocument(L"Folivant - " + listed);
  StartPage();
}

void PrinterWriter::StartPage() {
  ++pageNumber_;
  page_->Select(Page::Face::HeaderFooter);
  DrawCentred(ExpandHeaderFooter(HeaderFooter::Footer, *run_, pageNumber_), layout_.BodyBottom - layout_.LineHeight);
  DrawCentred(ExpandHeaderFooter(HeaderFooter::Header, *run_, pageNumber_), layout_.HeaderTop);
  page_->EndLine();
  page_->Select(Page::Face::Listing);
  page_->EndLine();
  page_->EndLine();
  DrawStyleCaptions();
}

void PrinterWriter::DrawCentred(std::wstring_view text, double y) {
  page_->MoveTo(y);
  page_->Draw(page_->Area().Width / 2 - page_->WidthOf(text) / 2, text);
}

bool PrinterWriter::BreakPage(double linesToKeepFree) {
  if (!IsLonger(page_->Y(), layout_.BodyBottom - linesToKeepFree * layout_.LineHeight)) {
    return false;
  }
  page_->NextPage();
  StartPage();
  return true;
}

void PrinterWriter::BreakPageInBody(double linesToKeepFree) {
  if (BreakPage(linesToKeepFree)) {
    run_->Watcher.LetEventsThrough();  // a directory may fill hundreds of pages
  }
}

void PrinterWriter::BreakPageBeforeLine() {
  BreakPageInBody(kLinesBelowLine);
}

void PrinterWriter::DrawStyleCaptions() {
  if (run_->Format.IsFileList()) {
    DrawFoundCaptions();
  } else if (run_->Format.ListingStyle == ListingStyle::DirectoryView) {
    DrawDirectoryCaptions();
  } else if (run_->Format.ListingStyle != ListingStyle::FullPathList) {
    DrawEntryCaptions();
  }
  page_->EndLine();
}

void PrinterWriter::DrawEntryCaptions() {
  if (run_->Format.Files.*kNameColumn.Shown) {
    DrawAtOrigin(run_->Texts[kNameColumn.Caption]);
  }
  for (std::size_t i = 0; i < kFurtherColumns.size(); ++i) {
    const EntryColumn& column = kFurtherColumns[i];
    if (run_->Format.Files.*column.Shown) {
      DrawCaption(layout_.Entries.*kEntryPlaces[i], column.Layout.Align, run_->Texts[column.Caption]);
    }
  }
}

void PrinterWriter::DrawDirectoryCaptions() {
  DrawAtOrigin(run_->Texts[Text::DirectoryCaption]);
  for (std::size_t i = 0; i < kDirectoryColumns.size(); ++i) {
    if (run_->Format.Directories.*kDirectoryColumns[i].Shown) {
      const double begin = i == 0 ? layout_.Directories.NameWidth : layout_.Directories.Ends[i - 1];
      const double room = layout_.Directories.Ends[i] - begin - page_->RememberedWidthOf(L" ");
      page_->DrawEndingAt(layout_.Origin + layout_.Directories.Ends[i],
                          CutCaption(run_->Texts[kDirectoryColumns[i].Caption], room, *page_));
    }
  }
}

void PrinterWriter::DrawFoundCaptions() {
  DrawAtOrigin(run_->Texts[Text::NameCaption]);
  page_->Draw(layout_.Origin + layout_.Found.Folder, run_->Texts[Text::FolderCaption]);
  DrawCaption(layout_.Found.SizeEnd, Alignment::Right, run_->Texts[Text::SizeCaption]);
  page_->Draw(layout_.Origin + layout_.Found.Date, run_->Texts[Text::DateCaption]);
}

void PrinterWriter::DirectoryHeading(std::wstring_view path) {
  BreakPageInBody(kLinesBelowHeading);
  page_->EndLine();
  page_->Select(Page::Face::Heading);
  text_ = run_->Texts[Text::DirectoryHeading];
  text_ += L' ';
  text_ += path;
  DrawAtOrigin(FitHeading(text_, layout_.HeadingWidth, *page_));
  page_->EndLine();
  page_->Select(Page::Face::Listing);
  page_->EndLine();
  DrawEntryCaptions();
  page_->EndLine();
  page_->EndLine();
}

void PrinterWriter::DirectorySummary(std::wstring_view summary) {
  page_->EndLine();
  page_->Draw(layout_.Origin + kSummaryIndent, summary);
  page_->EndLine();
}

// Nothing of a cancelled run is printed, so nothing more of it is drawn.

void PrinterWriter::ListDirectory(const DirectoryListing& directory) {
  if (run_->IsCancelled()) {
    return;
  }
  DirectoryHeading(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    EntryLine(directory.Records[index], 0);
    if (run_->IsCancelled()) {
      return;
    }
  }
  DirectorySummary(directory.Summary);
}

void PrinterWriter::ListPaths(const DirectoryListing& directory) {
  const std::wstring folder = AddBackslash(directory.Path);
  for (const std::uint32_t index : directory.Order) {
    BreakPageBeforeLine();
    if (run_->IsCancelled()) {
      return;
    }
    text_ = folder;
    texts_->AppendName(directory.Records[index], text_);
    DrawAtOrigin(FitPathToWidth(text_, layout_.UsableWidth, *page_));
    page_->EndLine();
  }
}

void PrinterWriter::BeginTree(std::wstring_view root) {
  DirectoryHeading(root);
}

void PrinterWriter::TreeEntry(const FileRecord& entry) {
  if (!run_->IsCancelled()) {
    EntryLine(entry, entry.Level);
  }
}

void PrinterWriter::EntryLine(const FileRecord& entry, std::int32_t indent) {
  if (run_->Format.Files.*kNameColumn.Shown) {
    StartIndented(indent);
    texts_->AppendName(entry, text_);
    DrawName(layout_.Origin, text_, layout_.Entries.NameWidth);
  }
  for (std::size_t i = 0; i < kFurtherColumns.size(); ++i) {
    const EntryColumn& column = kFurtherColumns[i];
    if (run_->Format.Files.*column.Shown) {
      text_.clear();
      ((*texts_).*column.AppendValue)(entry, text_);
      DrawCell(layout_.Entries.*kEntryPlaces[i], column.Layout.Align, text_);
    }
  }
  page_->EndLine();
  BreakPageBeforeLine();
}

void PrinterWriter::DrawCell(double position, Alignment alignment, std::wstring_view text) {
  if (alignment == Alignment::Right) {
    page_->DrawEndingAt(layout_.Origin + position, text);
  } else {
    page_->Draw(layout_.Origin + position, text);
  }
}

void PrinterWriter::DrawCaption(double position, Alignment alignment, std::wstring_view caption) {
  if (alignment == Alignment::Right) {
    position -= page_->RememberedWidthOf(kAfterSizeCaption);
  }
  DrawCell(position, alignment, caption);
}

void PrinterWriter::DirectoryViewEntry(const DirNode& node) {
  if (node.Level == 0) {
    DrawAtOrigin(FitPathToWidth(node.Path, layout_.Directories.NameWidth, *page_));
  } else {
    StartIndented(node.Level);
    text_ += node.Name;
    DrawName(layout_.Origin, text_, layout_.Directories.NameWidth);
  }
  for (std::size_t i = 0; i < kDirectoryColumns.size(); ++i) {
    if (run_->Format.Directories.*kDirectoryColumns[i].Shown) {
      text_.clear();
      kDirectoryColumns[i].AppendValue(node, run_->Texts, text_);
      page_->DrawEndingAt(layout_.Origin + layout_.Directories.Ends[i], text_);
    }
  }
  page_->EndLine();
  BreakPageBeforeLine();
}

void PrinterWriter::FindList(const FoundRows& rows) {
  if (run_->Format.ListingStyle == ListingStyle::FindWindow) {
    BeginPages(rows.Title);
  }
  page_->Select(Page::Face::Heading);
  DrawAtOrigin(rows.Title);
  page_->EndLine();
  page_->Select(Page::Face::Listing);
  page_->EndLine();
  DrawFoundCaptions();
  page_->EndLine();
  page_->EndLine();
  for (auto row = rows.Items.begin(); row != rows.Items.end() && !run_->IsCancelled(); ++row) {
    FoundLine(*row);
  }
}

void PrinterWriter::FoundLine(const FoundItem& row) {
  DrawName(layout_.Origin, row.Name, layout_.Found.NameWidth);
  DrawName(layout_.Origin + layout_.Found.Folder, row.InFolder, layout_.Found.FolderWidth);
  page_->DrawEndingAt(layout_.Origin + layout_.Found.SizeEnd, row.Size);
  page_->Draw(layout_.Origin + layout_.Found.Date, row.Modified);
  page_->EndLine();
  BreakPageBeforeLine();
}

void PrinterWriter::EndListing() {
  if (run_->Format.IsCollected()) {
    page_->EndLine();
  }
  for (const std::wstring& sentence : ClosingSentences(*run_)) {
    ClosingLine(sentence);
  }
  page_->EndDocument();
  page_.reset();
}

/// Without letting events through: the listing is complete, and a run can be cancelled no more.
void PrinterWriter::ClosingLine(std::wstring_view text) {
  BreakPage(kLinesBelowLine);
  DrawAtOrigin(text);
  page_->EndLine();
}

void PrinterWriter::AbortListing() noexcept {
  if (page_) {
    page_->AbortDocument();
    page_.reset();
  }
}

void PrinterWriter::DrawName(double x, std::wstring_view name, double width) {
  if (!IsLonger(page_->WidthOf(name), width)) {
    page_->Draw(x, name);
  } else {
    page_->Draw(x, ShortenName(name, width, DrawnMeasure(*page_)));
  }
}

void PrinterWriter::StartIndented(std::int32_t level) {
  text_.assign(kIndent * static_cast<std::size_t>(std::max(level, 0)), L' ');
}

}  // namespace

std::unique_ptr<ListingWriter> MakePrinterWriter() {
  return std::make_unique<PrinterWriter>();
}

}  // namespace folivant
