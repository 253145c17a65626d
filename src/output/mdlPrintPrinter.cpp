// What each listing event draws on paper. Nothing of a cancelled run is printed, so nothing more of it is drawn.
#include "output/mdlPrintPrinter.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/mdlFileRoutines.h"
#include "output/Columns.h"
#include "output/DriverServices.h"
#include "output/ListingPages.h"
#include "output/NameShortening.h"
#include "scan/ListingRun.h"

namespace folivant {
namespace {

/// Line heights that a directory's heading leaves free: more than a line, so that none stands alone at the foot of a
/// page.
constexpr double kLinesBelowHeading = 10;
/// A small fixed indent in twips, kept as designed.
constexpr double kSummaryIndent = 20;
constexpr std::size_t kIndent = 3;

class PrinterWriter final : public ListingWriter {
 public:
  void BeginListing(ListingRun& run) override;
  void ListDirectory(const DirectoryListing& directory) override;
  void ListPaths(const DirectoryListing& directory) override;
  void BeginTree(std::wstring_view root) override { DirectoryHeading(root); }
  void TreeEntry(const FileRecord& entry) override;
  void DirectoryViewEntry(const DirNode& node) override;
  void FindList(const FoundRows& rows) override;
  void EndListing() override;
  void AbortListing() noexcept override;

 private:
  void DirectoryHeading(std::wstring_view path);
  void DirectorySummary(std::wstring_view summary);
  void EntryLine(const FileRecord& entry, std::int32_t indent);
  void FoundLine(const FoundItem& row);
  void StartIndented(std::int32_t level);
  void EndLineOfListing();

  // From the beginning of a listing to its end.
  ListingRun* run_ = nullptr;
  std::optional<EntryTexts> texts_;
  std::optional<ListingPages> pages_;
  std::wstring text_;  ///< the line being put together
};

void PrinterWriter::BeginListing(ListingRun& run) {
  run_ = &run;
  texts_.emplace(run);
  pages_.emplace(run);
  // The user chooses a Find window later, and the document is named after it.
  if (run.Format.ListingStyle != ListingStyle::FindWindow) {
    pages_->BeginDocument(run.Start.Shown);
  }
}

void PrinterWriter::DirectoryHeading(std::wstring_view path) {
  pages_->BreakPageInBody(kLinesBelowHeading);
  pages_->EndLine();
  pages_->Select(Page::Face::Heading);
  text_ = run_->Texts[TextId::DirectoryHeading];
  text_ += L' ';
  text_ += path;
  pages_->Draw(0, FitHeading(text_, pages_->Layout().HeadingWidth, pages_->Measure()));
  pages_->EndLine();
  pages_->Select(Page::Face::Listing);
  pages_->EndLine();
  pages_->DrawEntryCaptions();
  pages_->EndLine();
  pages_->EndLine();
}

void PrinterWriter::DirectorySummary(std::wstring_view summary) {
  pages_->EndLine();
  pages_->Draw(kSummaryIndent, summary);
  pages_->EndLine();
}

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
    pages_->BreakPageInBody(kLinesBelowLine);
    if (run_->IsCancelled()) {
      return;
    }
    text_ = folder;
    texts_->AppendName(directory.Records[index], text_);
    pages_->Draw(0, FitPathToWidth(text_, pages_->Layout().UsableWidth, pages_->Measure()));
    pages_->EndLine();
  }
}

void PrinterWriter::TreeEntry(const FileRecord& entry) {
  if (!run_->IsCancelled()) {
    EntryLine(entry, entry.Level);
  }
}

void PrinterWriter::EntryLine(const FileRecord& entry, std::int32_t indent) {
  const EntryPositions& positions = pages_->Layout().Entries;
  if (run_->Format.Files.*kNameColumn.Shown) {
    StartIndented(indent);
    texts_->AppendName(entry, text_);
    pages_->DrawName(0, text_, positions.NameWidth);
  }
  for (std::size_t i = 0; i < kFurtherColumns.size(); ++i) {
    const EntryColumn& column = kFurtherColumns[i];
    if (run_->Format.Files.*column.Shown) {
      text_.clear();
      ((*texts_).*column.AppendValue)(entry, text_);
      pages_->Draw(positions.*kColumnPositions[i], text_, column.Layout.Align);
    }
  }
  EndLineOfListing();
}

void PrinterWriter::DirectoryViewEntry(const DirNode& node) {
  const DirectoryPositions& positions = pages_->Layout().Directories;
  if (node.Level == 0) {
    pages_->Draw(0, FitPathToWidth(node.Path, positions.NameWidth, pages_->Measure()));
  } else {
    StartIndented(node.Level);
    text_ += node.Name;
    pages_->DrawName(0, text_, positions.NameWidth);
  }
  for (std::size_t i = 0; i < kDirectoryColumns.size(); ++i) {
    if (run_->Format.Directories.*kDirectoryColumns[i].Shown) {
      text_.clear();
      kDirectoryColumns[i].AppendValue(node, run_->Texts, text_);
      pages_->Draw(positions.Ends[i], text_, Alignment::Right);
    }
  }
  EndLineOfListing();
}

void PrinterWriter::FindList(const FoundRows& rows) {
  if (run_->Format.ListingStyle == ListingStyle::FindWindow) {
    pages_->BeginDocument(rows.Title);
  }
  pages_->Select(Page::Face::Heading);
  pages_->Draw(0, rows.Title);
  pages_->EndLine();
  pages_->Select(Page::Face::Listing);
  pages_->EndLine();
  pages_->DrawFoundCaptions();
  pages_->EndLine();
  pages_->EndLine();
  for (auto row = rows.Items.begin(); row != rows.Items.end() && !run_->IsCancelled(); ++row) {
    FoundLine(*row);
  }
}

void PrinterWriter::FoundLine(const FoundItem& row) {
  const FoundPositions& positions = pages_->Layout().Found;
  pages_->DrawName(0, row.Name, positions.NameWidth);
  pages_->DrawName(positions.Folder, row.InFolder, positions.FolderWidth);
  pages_->Draw(positions.SizeEnd, row.Size, Alignment::Right);
  pages_->Draw(positions.Date, row.Modified);
  EndLineOfListing();
}

// The closing lines let no events through: the listing is complete, and a run can be cancelled no more.
void PrinterWriter::EndListing() {
  if (run_->Format.IsCollected()) {
    pages_->EndLine();
  }
  for (const std::wstring& sentence : ClosingSentences(*run_)) {
    pages_->BreakPage(kLinesBelowLine);
    pages_->Draw(0, sentence);
    pages_->EndLine();
  }
  pages_->EndDocument();
  pages_.reset();
}

void PrinterWriter::AbortListing() noexcept {
  if (pages_) {
    pages_->AbortDocument();
    pages_.reset();
  }
}

void PrinterWriter::StartIndented(std::int32_t level) {
  text_.assign(kIndent * static_cast<std::size_t>(std::max(level, 0)), L' ');
}

void PrinterWriter::EndLineOfListing() {
  pages_->EndLine();
  pages_->BreakPageInBody(kLinesBelowLine);
}

}  // namespace

std::unique_ptr<ListingWriter> MakePrinterWriter() {
  return std::make_unique<PrinterWriter>();
}

}  // namespace folivant
