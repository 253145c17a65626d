// Where the lines of a listing stand on paper, page after page.
#include "output/ListingPages.h"

#include "base/Lengths.h"
#include "output/DriverServices.h"
#include "output/NameShortening.h"
#include "ui/Margins.h"

namespace folivant {
namespace {

/// What a right-aligned caption keeps free before the end of its column.
constexpr std::wstring_view kAfterCaption = L"   ";

/// A caption that would run into the one before it loses its end.
std::wstring CutCaption(std::wstring_view caption, double room, const TextMeasure& measure) {
  constexpr std::wstring_view kDots = L"...";
  if (!IsLonger(measure.WidthOf(caption), room)) {
    return std::wstring(caption);
  }
  std::wstring cut(caption.substr(0, DrawnMeasure(measure).Fit(caption, room - measure.WidthOf(kDots))));
  return cut += kDots;
}

}  // namespace

ListingPages::ListingPages(ListingRun& run)
    : run_(run),
      page_(MakePage(platform::OpenPageSurface(PrintJobOf(run.Printer, run.General.Portrait)), run.General)),
      layout_(LayOut(*page_, run.General, run.Format, run.Texts)) {}

void ListingPages::BeginDocument(const std::wstring& listed) {
  page_->BeginDocument(L"Folivant - " + listed);
  StartPage();
}

void ListingPages::StartPage() {
  ++pageNumber_;
  page_->Select(Page::Face::HeaderFooter);
  DrawCentred(ExpandHeaderFooter(HeaderFooter::Footer, run_, pageNumber_), layout_.BodyBottom - layout_.LineHeight);
  DrawCentred(ExpandHeaderFooter(HeaderFooter::Header, run_, pageNumber_), layout_.HeaderTop);
  page_->EndLine();
  page_->Select(Page::Face::Listing);
  page_->EndLine();
  page_->EndLine();
  DrawStyleCaptions();
}

void ListingPages::DrawCentred(std::wstring_view text, double y) {
  page_->MoveTo(y);
  page_->Draw(page_->Area().Width / 2 - page_->WidthOf(text) / 2, text);
}

bool ListingPages::BreakPage(double linesToKeepFree) {
  if (!IsLonger(page_->Y(), layout_.BodyBottom - linesToKeepFree * layout_.LineHeight)) {
    return false;
  }
  page_->NextPage();
  StartPage();
  return true;
}

void ListingPages::BreakPageInBody(double linesToKeepFree) {
  if (BreakPage(linesToKeepFree)) {
    run_.Watcher.LetEventsThrough();  // a directory may fill hundreds of pages
  }
}

void ListingPages::Draw(double position, std::wstring_view text, Alignment alignment) {
  if (alignment == Alignment::Right) {
    page_->DrawEndingAt(layout_.Origin + position, text);
  } else {
    page_->Draw(layout_.Origin + position, text);
  }
}

void ListingPages::DrawName(double position, std::wstring_view name, double width) {
  if (!IsLonger(page_->WidthOf(name), width)) {
    Draw(position, name);
  } else {
    Draw(position, ShortenName(name, width, DrawnMeasure(*page_)));
  }
}

void ListingPages::DrawStyleCaptions() {
  if (run_.Format.IsFileList()) {
    DrawFoundCaptions();
  } else if (run_.Format.ListingStyle == ListingStyle::DirectoryView) {
    DrawDirectoryCaptions();
  } else if (run_.Format.ListingStyle != ListingStyle::FullPathList) {
    DrawEntryCaptions();
  }
  page_->EndLine();
}

void ListingPages::DrawEntryCaptions() {
  if (run_.Format.Files.*kNameColumn.Shown) {
    Draw(0, run_.Texts[kNameColumn.Caption]);
  }
  for (std::size_t i = 0; i < kFurtherColumns.size(); ++i) {
    const EntryColumn& column = kFurtherColumns[i];
    if (run_.Format.Files.*column.Shown) {
      DrawCaption(layout_.Entries.*kColumnPositions[i], column.Layout.Align, run_.Texts[column.Caption]);
    }
  }
}

void ListingPages::DrawDirectoryCaptions() {
  Draw(0, run_.Texts[TextId::DirectoryCaption]);
  for (std::size_t i = 0; i < kDirectoryColumns.size(); ++i) {
    if (run_.Format.Directories.*kDirectoryColumns[i].Shown) {
      const double begin = i == 0 ? layout_.Directories.NameWidth : layout_.Directories.Ends[i - 1];
      const double room = layout_.Directories.Ends[i] - begin - page_->RememberedWidthOf(L" ");
      Draw(layout_.Directories.Ends[i], CutCaption(run_.Texts[kDirectoryColumns[i].Caption], room, *page_),
           Alignment::Right);
    }
  }
}

void ListingPages::DrawFoundCaptions() {
  Draw(0, run_.Texts[TextId::NameCaption]);
  Draw(layout_.Found.Folder, run_.Texts[TextId::FolderCaption]);
  DrawCaption(layout_.Found.SizeEnd, Alignment::Right, run_.Texts[TextId::SizeCaption]);
  Draw(layout_.Found.Date, run_.Texts[TextId::DateCaption]);
}

void ListingPages::DrawCaption(double position, Alignment alignment, std::wstring_view caption) {
  if (alignment == Alignment::Right) {
    position -= page_->RememberedWidthOf(kAfterCaption);
  }
  Draw(position, caption, alignment);
}

}  // namespace folivant
