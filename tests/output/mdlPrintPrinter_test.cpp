// The print job, its pages and where they break, and what happens when the printer fails.
#include "output/mdlPrintPrinter.h"

#include <gtest/gtest.h>

#include "output/PageFixture.h"
#include "output/mdlPrint.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

// --- The job and the page ---

TEST_F(PageWriter, TheJobCarriesThePrinterSettings) {
  General.Portrait = false;
  Start.OnDisk = L"C:\\DATA";
  Begin(ListingStyle::NoSubdirectories);
  ASSERT_EQ(printer.Jobs.size(), 1U);
  const platform::PrintJob& job = printer.Jobs[0];
  EXPECT_EQ(job.PrinterName, L"Laser");
  EXPECT_EQ(job.Copies, 3);
  EXPECT_EQ(job.Duplex, 2);
  EXPECT_EQ(job.Quality, -4);
  EXPECT_EQ(job.PaperBin, 4);
  EXPECT_FALSE(job.Portrait);
}

TEST_F(PageWriter, PathsBeginAtTheLineOrigin) {
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\Data", 1, L"Entry.txt");
  EXPECT_EQ(printer.Find(1, L"C:\\Data\\Entry.txt").X, kOrigin);
}

TEST_F(PageWriter, AClosingLineTakesTheLastPlaceAboveTheFooter) {
  // Entries and summary end at 3,376 + 44 x 220 + 440 = 13,496, and four lines above 14,560 is 13,680.
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 44);
  writer->EndListing();
  EXPECT_EQ(printer.At(1, kOrigin, 13'496), L"0 files, 0 directories, 0 b ");
}

TEST_F(PageWriter, TheDocumentIsNamedAfterTheStartPath) {
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_EQ(printer.Titles, std::vector<std::wstring>{L"Folivant - C:\\Data"});
}

TEST_F(PageWriter, APathListsDocumentIsNamedAfterItsFile) {
  Start.Shown = L"C:\\Lists\\paths.txt";
  Begin(ListingStyle::PathListFile);
  writer->FindList({L"Search Results", {}});  // of an earlier run
  EXPECT_EQ(printer.Titles, std::vector<std::wstring>{L"Folivant - C:\\Lists\\paths.txt"});
}

TEST_F(PageWriter, AFindListsDocumentIsNamedAfterItsWindow) {
  Begin(ListingStyle::FindWindow);
  EXPECT_TRUE(printer.Jobs.empty()) << "the window is chosen after the beginning";
  writer->FindList({L"Search Results", {}});
  writer->EndListing();
  EXPECT_EQ(printer.Titles, std::vector<std::wstring>{L"Folivant - Search Results"});
  EXPECT_EQ(printer.Ended, 1);
}

TEST_F(PageWriter, AFindListWhoseChoiceIsCancelledNeverReachesTheQueue) {
  Begin(ListingStyle::FindWindow).AbortListing();
  EXPECT_TRUE(printer.Jobs.empty());
  EXPECT_EQ(printer.Aborted, 0);
}

TEST_F(PageWriter, HeaderAndFooterAreCentredInFourFifthsOfTheFont) {
  Begin(ListingStyle::NoSubdirectories);
  // "H 1" is 2 x 96 + 48 = 240 wide: 6,000 - 120.
  const fakes::DrawnText& header = printer.Find(1, L"H 1");
  EXPECT_EQ(header.X, 5880);
  EXPECT_EQ(header.Y, 1440);
  EXPECT_EQ(*header.Font, (platform::PageFont{L"Courier New", 8, false}));
  const fakes::DrawnText& footer = printer.Find(1, L"F 1");
  EXPECT_EQ(footer.X, 5880);
  EXPECT_EQ(footer.Y, 16000 - 1440 - 220);
  EXPECT_EQ(*footer.Font, (platform::PageFont{L"Courier New", 8, false}));
}

TEST_F(PageWriter, FourFifthsOfAnOddFontSizeKeepTheirFraction) {
  General.FontSize = 9;
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_DOUBLE_EQ(printer.Find(1, L"H 1").Font->Points, 7.2);
}

TEST_F(PageWriter, AnOwnHeaderAndFooterFontIsUsedWhenTheRuleIsOff) {
  General.Font80HF = false;
  General.FontNameHF = L"Arial";
  General.FontSizeHF = 14;
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_EQ(*printer.Find(1, L"F 1").Font, (platform::PageFont{L"Arial", 14, false}));
  // Its own line of 308, then two empty ones of the listing font.
  EXPECT_EQ(printer.Find(1, L"Name").Y, 1440 + 308 + 2 * 220);
  EXPECT_EQ(printer.Find(1, L"Name").Font->Points, 10);
}

TEST_F(PageWriter, TheFooterIsDrawnBeforeTheHeader) {
  Begin(ListingStyle::NoSubdirectories);
  ASSERT_GE(printer.Drawn.size(), 2U);
  EXPECT_EQ(printer.Drawn[0].Text, L"F 1");
  EXPECT_EQ(printer.Drawn[1].Text, L"H 1");
}

TEST_F(PageWriter, EachPageShowsItsOwnNumber) {
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\Data", 120);  // 52 lines go on a page
  EXPECT_EQ(printer.Pages, 3);
  for (int page = 1; page <= 3; ++page) {
    EXPECT_NO_THROW(printer.Find(page, L"H " + std::to_wstring(page)));
    EXPECT_NO_THROW(printer.Find(page, L"F " + std::to_wstring(page)));
  }
}

TEST_F(PageWriter, HeaderAndFooterKnowEveryPlaceholder) {
  fakes::Fake().Labels[L"C:\\"] = L"DISK";
  Filter.NameOn = true;
  Filter.FilterName = L"*.txt";
  General.Header = L"%p %l %f";
  General.Footer = L"%g %d %t %n";
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_NO_THROW(printer.Find(1, L"C:\\Data Disk *.txt"));
  EXPECT_NO_THROW(printer.Find(1, L"*.txt 2001/02/03 04:05 1"));
}

TEST_F(PageWriter, UnprintableBordersAreTakenFromTheMargins) {
  printer.Area = {11000, 15000, 300, 400, 500, 600};
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_EQ(printer.Find(1, L"H 1").Y, 1440 - 400);
  EXPECT_EQ(printer.Find(1, L"H 1").X, 5500 - 120);
  EXPECT_EQ(printer.Find(1, L"F 1").Y, 15000 - 1440 + 600 - 220);
  EXPECT_EQ(printer.Find(1, L"Name").X, 1440 - 300);
  // Lines end at 11,000 - 2,880 + 800 = 8,920 from their beginning; the attributes take 600.
  EXPECT_EQ(printer.Find(1, L"Attr").X, 1140 + 8920 - 600);
}

TEST_F(PageWriter, MillimetresAreConvertedToTwips) {
  General.Inches = false;
  General.MarginLeft = 20;    // 1,133.858 twips
  General.MarginTop = 15;     // 850.394
  General.MarginBottom = 10;  // 566.929
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_NEAR(printer.Find(1, L"Name").X, 1133.858, 0.001);
  EXPECT_NEAR(printer.Find(1, L"H 1").Y, 850.394, 0.001);
  EXPECT_NEAR(printer.Find(1, L"F 1").Y, 16000 - 566.929 - 220, 0.001);
}

// --- Page breaks ---

TEST_F(PageWriter, FourLinesStayFreeBelowAnEntry) {
  // A line may not begin below 14,560 - 880 = 13,680. Entry 47 is at 3,376 + 46 x 220 = 13,496, the next would be at
  // 13,716.
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 48);
  EXPECT_EQ(printer.Line(1, 13'496).substr(0, 9), L"Entry.txt");
  EXPECT_EQ(printer.Line(1, 13'716), L"");
  EXPECT_EQ(printer.Pages, 2);
  EXPECT_EQ(printer.Line(2, kCaptions), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.Line(2, kFirstLine).substr(0, 9), L"Entry.txt");
  // Page 2 begins without a heading: the summary follows one empty line.
  EXPECT_EQ(printer.Find(2, L"the summary").Y, kFirstLine + 2 * kLine);
}

TEST_F(PageWriter, ALineExactlyAtTheLimitStaysOnThePage) {
  printer.Area.Height = 15'816;  // the limit is then 13,496, where entry 47 begins
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 47);
  EXPECT_EQ(printer.Line(1, 13'496).substr(0, 9), L"Entry.txt");
}

TEST_F(PageWriter, ALineAHairBelowTheLimitGoesToTheNextPage) {
  printer.Area.Height = 15'815;
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 47);
  EXPECT_EQ(printer.Line(1, 13'496), L"");
  EXPECT_EQ(printer.Line(2, kFirstLine).substr(0, 9), L"Entry.txt");
}

TEST_F(PageWriter, TenLinesStayFreeBelowAHeading) {
  // A heading may not begin below 14,560 - 2,200 = 12,360. After 38 entries and the summary the page stands at
  // 3,376 + 40 x 220 = 12,176, after 39 at 12,396.
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 38);
  ListDirectory(L"C:\\Data\\Sub", 0);
  EXPECT_EQ(printer.Find(1, L"Directory C:\\Data\\Sub").Y, 12'396);
  EXPECT_EQ(printer.Pages, 1);

  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 39);
  ListDirectory(L"C:\\Data\\Sub", 0);
  EXPECT_EQ(printer.Find(2, L"Directory C:\\Data\\Sub").Y, kFirstHeading);
  EXPECT_EQ(printer.Pages, 2);
}

TEST_F(PageWriter, ASummaryBreaksNoPage) {
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 46);  // the page stands at 13,496, the summary goes one line further
  EXPECT_EQ(printer.Find(1, L"the summary").Y, 13'716);
  EXPECT_EQ(printer.Pages, 1);
}

TEST_F(PageWriter, BordersBelowCountForPageBreaks) {
  printer.Area = {12000, 15400, 0, 300, 0, 300};
  // The top margin is 1,140 from the printable area, the body ends at 15,400 - 1,440 + 300 = 14,260: the whole page is
  // shifted up by 300 and holds what it held without borders.
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 47);
  EXPECT_EQ(printer.Line(1, 13'496 - 300).substr(0, 9), L"Entry.txt");
  EXPECT_EQ(printer.Pages, 2);
}

// --- The end ---

struct ClosingCase {
  ListingStyle Style;
  double Totals;  ///< 0 for none
  double FreeSpace;
};
class ClosingLines : public PageWriter, public ::testing::WithParamInterface<ClosingCase> {};

TEST_P(ClosingLines, AreThoseOfTheStyle) {
  Run.Totals.TotalFiles = 2;
  Run.Totals.TotalDirs = 1;
  Run.Totals.TotalSize = Currency::FromWhole(2048);
  Begin(GetParam().Style);
  if (Format.IsFileList()) {
    writer->FindList({});
  }
  writer->EndListing();
  EXPECT_EQ(printer.Ended, 1);
  const std::wstring totals = L"2 files, 1 directory, 2,048 b ";
  const std::wstring freeSpace = L"4,882 kb free of 19 Mb.";
  if (GetParam().Totals > 0) {
    EXPECT_EQ(printer.At(1, kOrigin, GetParam().Totals), totals);
  } else {
    EXPECT_THROW(printer.Find(1, totals), std::logic_error);
  }
  if (GetParam().FreeSpace > 0) {
    EXPECT_EQ(printer.At(1, kOrigin, GetParam().FreeSpace), freeSpace);
  } else {
    EXPECT_THROW(printer.Find(1, freeSpace), std::logic_error);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Styles, ClosingLines,
    ::testing::Values(ClosingCase{ListingStyle::NoSubdirectories, 0, kFirstLine},
                      ClosingCase{ListingStyle::IncludeSubdirectories, kFirstLine, kFirstLine + kLine},
                      ClosingCase{ListingStyle::TreeStyle, kFirstLine + kLine, kFirstLine + 2 * kLine},
                      ClosingCase{ListingStyle::DirectoryView, kFirstLine + kLine, kFirstLine + 2 * kLine},
                      ClosingCase{ListingStyle::FullPathList, 0, 0}, ClosingCase{ListingStyle::FindWindow, 0, 0},
                      ClosingCase{ListingStyle::PathListFile, 0, 0}));

TEST_F(PageWriter, ClosingLinesNeverRunIntoTheFooter) {
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 46);  // with the summary the page stands at 13,936
  writer->EndListing();
  EXPECT_EQ(printer.At(2, kOrigin, kFirstLine), L"0 files, 0 directories, 0 b ");
  EXPECT_EQ(printer.At(2, kOrigin, kFirstLine + kLine), L"4,882 kb free of 19 Mb.");
}

TEST_F(PageWriter, ACancelledRunPrintsNothing) {
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 100);
  EXPECT_EQ(printer.Open, 1);
  writer->AbortListing();
  EXPECT_EQ(printer.Ended, 0);
  EXPECT_EQ(printer.Aborted, 1);
  EXPECT_EQ(printer.Open, 0);
}

/// Counts how often events get through; the user cancels at the first of them, if at all.
struct PagesWatched final : Progress {
  int Pumped = 0;
  bool Cancels = false;
  void ShowDirectory(std::wstring_view) override {}
  void SetProgress(std::int32_t) override {}
  void LetEventsThrough() override { ++Pumped; }
  bool Cancelled() const override { return Cancels && Pumped > 0; }
};

TEST_F(PageWriter, AFileListStopsAtThePageOnWhichTheUserCancels) {
  PagesWatched watcher;
  watcher.Cancels = true;
  ListingRun run = MakeRun(watcher);
  Begin(ListingStyle::FindWindow, run);
  writer->FindList({L"Found files", std::vector<FoundItem>(500, {L"a.txt", L"C:\\Data", L"12 kb", L"now"})});
  EXPECT_EQ(printer.Pages, 2);
}

TEST_F(PageWriter, EventsRunAtEveryPageOfAHugeDirectory) {
  PagesWatched watcher;
  ListingRun run = MakeRun(watcher);
  Begin(ListingStyle::IncludeSubdirectories, run);
  ListDirectory(L"C:\\Data", 200);
  EXPECT_GE(printer.Pages, 4);
  EXPECT_EQ(watcher.Pumped, printer.Pages - 1);
}

TEST_F(PageWriter, AbortingWithoutABeginningDoesNothing) {
  writer->AbortListing();
  EXPECT_EQ(printer.Aborted, 0);
}

TEST_F(PageWriter, OneRunFollowsAnother) {
  Begin(ListingStyle::NoSubdirectories).EndListing();
  Begin(ListingStyle::NoSubdirectories).EndListing();
  EXPECT_EQ(printer.Ended, 2);
  EXPECT_EQ(printer.Aborted, 0);
  EXPECT_EQ(printer.Open, 0) << "the printer is let go";
  EXPECT_NO_THROW(printer.Find(1, L"H 1"));
}

// --- Failures ---

struct FailureCase {
  const char* Name;
  fakes::PrinterFailure Failure;
  int Page;
  int Aborted;  ///< documents thrown away
};
class PrinterFailures : public PageWriter, public ::testing::WithParamInterface<FailureCase> {};

TEST_P(PrinterFailures, ReachTheCallerWithTheSystemsText) {
  printer.Failure = GetParam().Failure;
  printer.FailingPage = GetParam().Page;
  try {
    Begin(ListingStyle::NoSubdirectories);
    ListDirectory(L"C:\\Data", 60);
    writer->EndListing();
    FAIL() << "the failure went unnoticed";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::Print);
    EXPECT_EQ(error.Object(), L"Laser");
    EXPECT_FALSE(error.SystemText().empty());
    EXPECT_NE(error.SystemCode(), 0U);
  }
  writer->AbortListing();
  EXPECT_EQ(printer.Ended, 0);
  EXPECT_EQ(printer.Aborted, GetParam().Aborted);
  printer.Failure = fakes::PrinterFailure::None;
  Begin(ListingStyle::NoSubdirectories).EndListing();
  EXPECT_EQ(printer.Ended, 1) << "the next run prints";
}

INSTANTIATE_TEST_SUITE_P(Where, PrinterFailures,
                         ::testing::Values(FailureCase{"Open", fakes::PrinterFailure::Open, 1, 0},
                                           FailureCase{"Font", fakes::PrinterFailure::SelectFont, 0, 0},
                                           FailureCase{"Begin", fakes::PrinterFailure::BeginDocument, 0, 0},
                                           FailureCase{"FontLater", fakes::PrinterFailure::SelectFont, 2, 1},
                                           FailureCase{"Draw", fakes::PrinterFailure::Draw, 1, 1},
                                           FailureCase{"DrawLater", fakes::PrinterFailure::Draw, 2, 1},
                                           FailureCase{"NewPage", fakes::PrinterFailure::NewPage, 1, 1},
                                           FailureCase{"End", fakes::PrinterFailure::EndDocument, 2, 1}),
                         [](const auto& instance) { return std::string(instance.param.Name); });

// --- Through the driver, and cost ---

TEST_F(PageWriter, TheDriverSendsPrintedListingsHere) {
  OutputDriver driver;
  driver.Choose(OutputKind::Printer);
  Format.ListingStyle = ListingStyle::NoSubdirectories;
  driver.BeginListing(Run);
  driver.EndListing();
  EXPECT_EQ(printer.Ended, 1);
  EXPECT_NO_THROW(printer.Find(1, L"4,882 kb free of 19 Mb."));
}

TEST_F(PageWriter, WidthsThatComeBackAreMeasuredOnce) {
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1);
  const std::size_t before = printer.Measured;
  ListDirectory(L"C:\\Data", 20);
  // Each name, and the heading's path; sizes and captions are remembered.
  EXPECT_LE(printer.Measured - before, 21U);
}

}  // namespace
}  // namespace folivant
