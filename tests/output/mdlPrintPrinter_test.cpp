// Pages on a recording printer. Every number here is worked out by hand from its measures: in 10 points a character is
// 120 twips wide, a blank 60 and a line 220 high (in bold 130, 70, 220); in 8 points 96, 48 and 176. The sheet is
// 12,000 by 16,000 twips with margins of one inch, so lines begin at 1,440 and are 9,120 wide, and the body ends at
// 14,560.
#include "output/mdlPrintPrinter.h"

#include <gtest/gtest.h>

#include <deque>
#include <numeric>

#include "fakes/FakePlatform.h"
#include "fakes/RecordingSurface.h"
#include "output/mdlPrint.h"
#include "platform/RuntimeError.h"

namespace folivant {
namespace {

constexpr double kOrigin = 1440;
constexpr double kLine = 220;
/// The header's line of 8 points, and two empty ones below the top margin.
constexpr double kCaptions = 1440 + 176 + 2 * kLine;
/// Where the first line of a page without a heading stands.
constexpr double kFirstLine = kCaptions + kLine;
/// Heading of the first directory: one empty line, the heading, one empty line, captions, one empty line.
constexpr double kFirstHeading = kFirstLine + kLine;
constexpr double kFirstEntry = kFirstHeading + 4 * kLine;

class PageWriter : public ::testing::Test {
 protected:
  PageWriter() {
    printer.Reset();
    printer.Area = {12000, 16000, 0, 0, 0, 0};
    SetUpTexts();
    general.Inches = true;
    general.MarginLeft = general.MarginRight = general.MarginTop = general.MarginBottom = 1;
    general.Portrait = true;
    general.FontName = L"Courier New";
    general.FontSize = 10;
    general.Font80HF = true;
    general.Header = L"H %n";
    general.Footer = L"F %n";
    format.Files = {true, true, true, true, true};
    format.Directories = {true, true, true, true};
    tree.StartPath = tree.StartPathOnDisk = L"C:\\Data";
    fakes::Fake().FreeSpace[L"C:\\"] = {5'000'000, 20'000'000};
  }

  void SetUpTexts() {
    const std::pair<Text, const wchar_t*> rows[] = {{Text::NameCaption, L"Name"},
                                                    {Text::DosNameCaption, L"DosName"},
                                                    {Text::SizeCaption, L"Size"},
                                                    {Text::DateCaption, L"Date"},
                                                    {Text::AttributesCaption, L"Attr"},
                                                    {Text::FolderCaption, L"Folder"},
                                                    {Text::DirectoryHeading, L"Directory"},
                                                    {Text::DirectoryCaption, L"Where"},
                                                    {Text::FilesCaption, L"Files"},
                                                    {Text::DirectorySizeCaption, L"Bytes"},
                                                    {Text::TotalFilesCaption, L"All"},
                                                    {Text::TotalSizeCaption, L"Sum"},
                                                    {Text::UnitBytes, L"b "},
                                                    {Text::UnitKilobytes, L"kb"},
                                                    {Text::UnitMegabytes, L"Mb"},
                                                    {Text::File, L"file"},
                                                    {Text::Files, L"files"},
                                                    {Text::JoiningWord, L","},
                                                    {Text::DirectoryWord, L"directory"},
                                                    {Text::DirectoriesWord, L"directories"},
                                                    {Text::FreeOf, L"free of"},
                                                    {Text::NoLabel, L"no label"}};
    for (const auto& [number, text] : rows) {
      texts.Set(static_cast<std::size_t>(number), text);
    }
  }

  PrinterWriter& Begin(ListingStyle style) {
    format.ListingStyle = style;
    pageNumber = 0;
    writer.BeginListing();
    return writer;
  }

  static FileRecord Entry(std::wstring_view name, std::int32_t level = 0) {
    FileRecord entry;
    entry.Name = name;
    entry.DosName = L"short.txt";
    entry.SizeText = L"1,024 b ";
    entry.DateText = L"2001/02/03 04:05";
    entry.AttrText = L" a   ";
    entry.Level = level;
    return entry;
  }

  /// One directory with `count` entries of the same name.
  void ListDirectory(std::wstring_view path, std::size_t count, std::wstring_view name = L"entry.txt") {
    const std::vector<FileRecord> records(count, Entry(name));
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    writer.ListDirectory({path, 0, records, order, L"the summary"});
  }

  static DirNode Node(std::wstring_view name, std::int32_t level) {
    DirNode node;
    node.Name = node.Path = name;
    node.Level = level;
    node.Files = 7;
    node.Size = Currency::FromWhole(9'999);
    node.TotalFiles = 1'234;
    node.TotalSize = Currency::FromWhole(5'000'000);
    return node;
  }

  fakes::RecordingPrinter& printer = fakes::Printer();
  Messages texts;
  GeneralSettings general;
  PrinterSettings settings{L"Laser", 3, 2, -4, 4};
  FilterSettings filter;
  ListingFormat format;
  ScanTree tree;
  OutputKind kind = OutputKind::Printer;
  std::wstring outputFile;
  std::wstring datePattern = L"yyyy/mm/dd";
  std::int16_t pageNumber = 0;
  ListingRun run{texts, general, settings, filter, format, tree, kind, outputFile, datePattern, pageNumber};
  PrinterWriter writer{run};
};

// --- The job and the page ---

TEST_F(PageWriter, TheJobCarriesThePrinterSettings) {
  general.Portrait = false;
  Begin(ListingStyle::NoSubdirectories);
  ASSERT_EQ(printer.Jobs.size(), 1U);
  const platform::PrintJob& job = printer.Jobs[0];
  EXPECT_EQ(job.PrinterName, L"Laser");
  EXPECT_EQ(job.Title, L"Folivant - C:\\Data");
  EXPECT_EQ(job.Copies, 3);
  EXPECT_EQ(job.Duplex, 2);
  EXPECT_EQ(job.Quality, -4);
  EXPECT_EQ(job.PaperBin, 4);
  EXPECT_FALSE(job.Portrait);
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
  general.FontSize = 9;
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_DOUBLE_EQ(printer.Find(1, L"H 1").Font->Points, 7.2);
}

TEST_F(PageWriter, AnOwnHeaderAndFooterFontIsUsedWhenTheRuleIsOff) {
  general.Font80HF = false;
  general.FontNameHF = L"Arial";
  general.FontSizeHF = 14;
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
  EXPECT_EQ(pageNumber, 3);
}

TEST_F(PageWriter, HeaderAndFooterKnowEveryPlaceholder) {
  fakes::Fake().Labels[L"C:\\"] = L"DISK";
  filter.NameOn = true;
  filter.FilterName = L"*.txt";
  general.Header = L"%p %l %f";
  general.Footer = L"%g %d %t %n";
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
  general.Inches = false;
  general.MarginLeft = 20;    // 1,133.858 twips
  general.MarginTop = 15;     // 850.394
  general.MarginBottom = 10;  // 566.929
  Begin(ListingStyle::NoSubdirectories);
  EXPECT_NEAR(printer.Find(1, L"Name").X, 1133.858, 0.001);
  EXPECT_NEAR(printer.Find(1, L"H 1").Y, 850.394, 0.001);
  EXPECT_NEAR(printer.Find(1, L"F 1").Y, 16000 - 566.929 - 220, 0.001);
}

// --- File views ---

TEST_F(PageWriter, CaptionsOfTheFileViewsStandUnderTheHeader) {
  Begin(ListingStyle::IncludeSubdirectories);
  EXPECT_EQ(printer.Line(1, kCaptions), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.At(1, kOrigin, kCaptions), L"Name");
  EXPECT_EQ(printer.At(1, kOrigin + 3960, kCaptions), L"DosName");
  // It ends three blanks short of the size end: 6,420 - 180 - 480.
  EXPECT_EQ(printer.At(1, kOrigin + 5760, kCaptions), L"Size");
  EXPECT_EQ(printer.At(1, kOrigin + 6540, kCaptions), L"Date");
  EXPECT_EQ(printer.At(1, kOrigin + 8520, kCaptions), L"Attr");
}

TEST_F(PageWriter, ADirectoryHasAHeadingInBoldCaptionsEntriesAndASummary) {
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 2);
  const fakes::DrawnText& heading = printer.Find(1, L"Directory C:\\Data");
  EXPECT_EQ(heading.X, kOrigin);
  EXPECT_EQ(heading.Y, kFirstHeading);
  EXPECT_TRUE(heading.Font->Bold);
  EXPECT_EQ(heading.Font->Points, 10);
  EXPECT_EQ(printer.Line(1, kFirstHeading + 2 * kLine), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.Line(1, kFirstHeading + 3 * kLine), L"");
  EXPECT_EQ(printer.Line(1, kFirstEntry), L"entry.txt|short.txt|1,024 b |2001/02/03 04:05| a   ");
  EXPECT_EQ(printer.Line(1, kFirstEntry + kLine), L"entry.txt|short.txt|1,024 b |2001/02/03 04:05| a   ");
  EXPECT_EQ(printer.Line(1, kFirstEntry + 2 * kLine), L"");
  const fakes::DrawnText& summary = printer.Find(1, L"the summary");
  EXPECT_EQ(summary.X, kOrigin + 20);
  EXPECT_EQ(summary.Y, kFirstEntry + 3 * kLine);
  EXPECT_FALSE(summary.Font->Bold);
}

TEST_F(PageWriter, SizesEndAtTheSizeColumn) {
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"entry.txt");
  EXPECT_EQ(printer.At(1, kOrigin + 3960, kFirstEntry), L"short.txt");
  // "1,024 b " is 6 x 120 + 2 x 60 = 840 wide and ends at 6,420.
  EXPECT_EQ(printer.At(1, kOrigin + 5580, kFirstEntry), L"1,024 b ");
  EXPECT_EQ(printer.At(1, kOrigin + 6540, kFirstEntry), L"2001/02/03 04:05");
  EXPECT_EQ(printer.At(1, kOrigin + 8520, kFirstEntry), L" a   ");
}

TEST_F(PageWriter, ColumnsThatAreOffAreNotDrawn) {
  format.Files = {false, false, true, false, false};
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1);
  EXPECT_EQ(printer.Line(1, kCaptions), L"Size");
  EXPECT_EQ(printer.Line(1, kFirstEntry), L"1,024 b ");
  // The size end is two blanks short of the whole width: 9,120 - 120 - 840.
  EXPECT_EQ(printer.At(1, kOrigin + 8160, kFirstEntry), L"1,024 b ");
}

TEST_F(PageWriter, ANameTooWideForItsColumnLosesItsMiddle) {
  // The column is 3,840 wide, 32 characters: 25 + "..." + ".txt".
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1, L"averyveryveryverylongfilenamewithtext.txt");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"averyveryveryverylongfile....txt");
}

TEST_F(PageWriter, NamesAreMeasuredAndNotCounted) {
  // Blanks are half as wide: 43 characters, 4,500 twips. What stays before "..." and ".txt" (840) is 3,000 twips, ten
  // groups of 300 with their blank, 30 characters.
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1, L"aa aa aa aa aa aa aa aa aa aa aa aa aa aa.txt");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"aa aa aa aa aa aa aa aa aa aa ....txt");
}

TEST_F(PageWriter, ANameThatJustFitsStaysWhole) {
  const std::wstring name(32, L'n');
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1, name);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), name);
}

TEST_F(PageWriter, AHeadingsPathIsShortenedInBoldToThePageLessTheMargins) {
  // 12,000 - 2,880 = 9,120; in bold 70 characters are 9,100 and 71 are 9,230. The heading's word is not counted.
  const std::wstring fits = L"C:\\" + std::wstring(60, L'd') + L"\\leaf12";
  ASSERT_EQ(fits.size(), 70U);
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(fits, 0);
  ListDirectory(L"C:\\" + std::wstring(61, L'd') + L"\\leaf12", 0);
  EXPECT_NO_THROW(printer.Find(1, L"Directory " + fits));
  // The leading part keeps 60 characters beside "..." and "\leaf12".
  EXPECT_NO_THROW(printer.Find(1, L"Directory C:\\" + std::wstring(57, L'd') + L"...\\leaf12"));
}

TEST_F(PageWriter, HeadingPathsIgnoreTheBorders) {
  printer.Area = {11000, 16000, 500, 0, 500, 0};
  // 11,000 - 2,880 = 8,120 although a line holds 9,120: 62 bold characters are 8,060, 63 are 8,190.
  const std::wstring fits = L"C:\\" + std::wstring(52, L'd') + L"\\leaf12";
  ASSERT_EQ(fits.size(), 62U);
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(fits, 0);
  ListDirectory(L"C:\\" + std::wstring(53, L'd') + L"\\leaf12", 0);
  EXPECT_NO_THROW(printer.Find(1, L"Directory " + fits));
  EXPECT_NO_THROW(printer.Find(1, L"Directory C:\\" + std::wstring(49, L'd') + L"...\\leaf12"));
}

// --- Page breaks ---

TEST_F(PageWriter, FourLinesStayFreeBelowAnEntry) {
  // A line may not begin below 14,560 - 880 = 13,680. Entry 47 is at 3,376 + 46 x 220 = 13,496, the next would be at
  // 13,716.
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 48);
  EXPECT_EQ(printer.Line(1, 13'496).substr(0, 9), L"entry.txt");
  EXPECT_EQ(printer.Line(1, 13'716), L"");
  EXPECT_EQ(printer.Pages, 2);
  EXPECT_EQ(printer.Line(2, kCaptions), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.Line(2, kFirstLine).substr(0, 9), L"entry.txt");
  // Page 2 begins without a heading: the summary follows one empty line.
  EXPECT_EQ(printer.Find(2, L"the summary").Y, kFirstLine + 2 * kLine);
}

TEST_F(PageWriter, ALineExactlyAtTheLimitStaysOnThePage) {
  printer.Area.Height = 15'816;  // the limit is then 13,496, where entry 47 begins
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 47);
  EXPECT_EQ(printer.Line(1, 13'496).substr(0, 9), L"entry.txt");
}

TEST_F(PageWriter, ALineAHairBelowTheLimitGoesToTheNextPage) {
  printer.Area.Height = 15'815;
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 47);
  EXPECT_EQ(printer.Line(1, 13'496), L"");
  EXPECT_EQ(printer.Line(2, kFirstLine).substr(0, 9), L"entry.txt");
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
  EXPECT_EQ(printer.Line(1, 13'496 - 300).substr(0, 9), L"entry.txt");
  EXPECT_EQ(printer.Pages, 2);
}

// --- Tree style ---

TEST_F(PageWriter, TreeEntriesAreIndentedUnderOneHeading) {
  Begin(ListingStyle::TreeStyle);
  writer.BeginTree(L"C:\\Data");
  writer.TreeEntry(Entry(L"sub"));
  writer.TreeEntry(Entry(L"deep.txt", 2));
  EXPECT_EQ(printer.Find(1, L"Directory C:\\Data").Y, kFirstHeading);
  EXPECT_EQ(printer.Line(1, kFirstHeading + 2 * kLine), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"sub");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry + kLine), L"      deep.txt");
}

TEST_F(PageWriter, ATreeEntrysIndentCountsForItsWidth) {
  // Six blanks are 360 wide, so of 32 characters 29 fit: 22 + "..." + ".txt".
  Begin(ListingStyle::TreeStyle);
  writer.TreeEntry(Entry(L"averyveryveryverylongfilename.txt", 2));
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"      averyveryveryverylongf....txt");
}

TEST_F(PageWriter, OnlyTheTreeStyleIndents) {
  Begin(ListingStyle::IncludeSubdirectories);
  const std::vector<FileRecord> records = {Entry(L"deep.txt", 2)};
  const std::vector<std::uint32_t> order = {0};
  writer.ListDirectory({L"C:\\Data\\a\\b", 2, records, order, L""});
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"deep.txt");
}

// --- Full-path list ---

TEST_F(PageWriter, AFullPathListHasOneLinePerEntryAndNoCaptions) {
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\Data", 2, L"a.txt");
  writer.EndListing();
  EXPECT_EQ(printer.Line(1, kCaptions), L"");
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\Data\\a.txt");
  EXPECT_EQ(printer.Line(1, kFirstLine + kLine), L"C:\\Data\\a.txt");
  EXPECT_EQ(printer.Drawn.size(), 4U) << "footer, header and the two lines: no heading, summary or totals";
}

TEST_F(PageWriter, AFullPathIsShortenedToTheWholeWidth) {
  // 9,120 twips are 76 characters, but a path must be narrower.
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\" + std::wstring(65, L'd'), 1, L"a.text");  // 75 characters
  ListDirectory(L"C:\\" + std::wstring(66, L'd'), 1, L"a.text");  // 76
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\" + std::wstring(65, L'd') + L"\\a.text");
  EXPECT_EQ(printer.Line(1, kFirstLine + kLine), L"C:\\" + std::wstring(62, L'd') + L"...\\a.text");
}

TEST_F(PageWriter, AFullPathListBreaksThePageBeforeALine) {
  // Line 52 is at 2,276 + 51 x 220 = 13,496, line 53 would be at 13,716.
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\", 52, L"a");
  EXPECT_EQ(printer.Pages, 1) << "no page is begun for a line that does not come";
  ListDirectory(L"C:\\", 1, L"b");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"C:\\b");
}

// --- Directory view ---

TEST_F(PageWriter, DirectoryViewNumbersEndAtTheirColumns) {
  // "  0.000 kb" is 1,020 wide and "  000.000" 960, so the ends are 9,120, 8,100, 7,140 and 6,120.
  Begin(ListingStyle::DirectoryView);
  writer.DirectoryViewEntry(Node(L"C:\\Data", 0));
  EXPECT_EQ(printer.Line(1, kCaptions), L"Where|Files|Bytes|All|Sum");
  EXPECT_EQ(printer.At(1, kOrigin, kCaptions), L"Where");
  EXPECT_EQ(printer.At(1, kOrigin + 6120 - 600, kCaptions), L"Files");
  EXPECT_EQ(printer.At(1, kOrigin + 7140 - 600, kCaptions), L"Bytes");
  EXPECT_EQ(printer.At(1, kOrigin + 8100 - 360, kCaptions), L"All");
  EXPECT_EQ(printer.At(1, kOrigin + 9120 - 360, kCaptions), L"Sum");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"C:\\Data");
  EXPECT_EQ(printer.At(1, kOrigin + 6120 - 120, kFirstLine), L"7");
  EXPECT_EQ(printer.At(1, kOrigin + 7140 - 840, kFirstLine), L"9,999 b ");
  EXPECT_EQ(printer.At(1, kOrigin + 8100 - 600, kFirstLine), L"1,234");
  EXPECT_EQ(printer.At(1, kOrigin + 9120 - 900, kFirstLine), L"4,882 kb");
}

TEST_F(PageWriter, DirectoryViewCaptionsNeverRunIntoEachOther) {
  // A column of 1,020 has room for 960 beside a blank: five of "Total size", which is 1,140 wide, and the dots.
  texts.Set(static_cast<std::size_t>(Text::TotalSizeCaption), L"Total size");
  Begin(ListingStyle::DirectoryView);
  EXPECT_EQ(printer.Line(1, kCaptions), L"Where|Files|Bytes|All|Total...");
  EXPECT_EQ(printer.At(1, kOrigin + 9120 - 960, kCaptions), L"Total...");
}

TEST_F(PageWriter, DirectoryViewNamesAreIndentedAndShortened) {
  // The name width is 6,120 - 960 = 5,160: 43 characters, or 41 and one level's three blanks with 60 to spare.
  Begin(ListingStyle::DirectoryView);
  writer.DirectoryViewEntry(Node(L"sub", 2));
  writer.DirectoryViewEntry(Node(std::wstring(42, L'n'), 1));
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"      sub");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine + kLine), L"   " + std::wstring(38, L'n') + L"...");
}

TEST_F(PageWriter, TheStartDirectoryIsShortenedAsAPath) {
  Begin(ListingStyle::DirectoryView);
  writer.DirectoryViewEntry(Node(L"C:\\" + std::wstring(40, L'd') + L"\\leaf", 0));
  // Narrower than 43 characters: 34 + "..." + "\leaf".
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"C:\\" + std::wstring(31, L'd') + L"...\\leaf");
}

TEST_F(PageWriter, DirectoryViewShowsOnlyItsChosenColumns) {
  format.Directories = {true, false, false, true};
  Begin(ListingStyle::DirectoryView);
  writer.DirectoryViewEntry(Node(L"C:\\Data", 0));
  EXPECT_EQ(printer.Line(1, kCaptions), L"Where|Files|Sum");
  EXPECT_EQ(printer.At(1, kOrigin + 8100 - 120, kFirstLine), L"7");
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\Data|7|4,882 kb");
}

TEST_F(PageWriter, DirectoryViewLinesBreakPagesToo) {
  Begin(ListingStyle::DirectoryView);
  for (int i = 0; i < 53; ++i) {
    writer.DirectoryViewEntry(Node(L"sub", 1));
  }
  EXPECT_EQ(printer.Line(1, 13'496), L"   sub|7|9,999 b |1,234|4,882 kb");
  EXPECT_EQ(printer.Line(1, 13'716), L"");
  EXPECT_EQ(printer.Line(2, kCaptions), L"Where|Files|Bytes|All|Sum");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"   sub|7|9,999 b |1,234|4,882 kb");
}

// --- File lists ---

class FileList : public PageWriter {
 protected:
  FileList() { tree.FindWindowTitle = L"Found files"; }
  // The title, an empty line, the captions, an empty line.
  static constexpr double kFirstRow = kFirstLine + 4 * kLine;
};

TEST_F(FileList, FileListsHaveTheirTitleCaptionsAndRows) {
  // Date 9,120 - 1,860 = 7,260; size end 7,140; a size begins at 7,140 - 1,260 = 5,880; name width (5,880 - 1,440) / 3
  // = 1,480; folder 120 + 1,440 + 1,480 = 3,040, drawn at 1,440 + 3,040: the margin counts twice.
  Begin(ListingStyle::FindWindow);
  const std::vector<FoundItem> rows = {{L"a.txt", L"C:\\Data", L"12 kb", L"2001/02/03 04:05"}};
  writer.FindList(rows);
  EXPECT_TRUE(printer.Find(1, L"Found files").Font->Bold);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"Found files");
  for (const double captions : {kCaptions, kFirstLine + 2 * kLine}) {
    EXPECT_EQ(printer.Line(1, captions), L"Name|Folder|Size|Date");
    EXPECT_EQ(printer.At(1, kOrigin, captions), L"Name");
    EXPECT_EQ(printer.At(1, kOrigin + 3040, captions), L"Folder");
    EXPECT_EQ(printer.At(1, kOrigin + 7140 - 180 - 480, captions), L"Size");
    EXPECT_EQ(printer.At(1, kOrigin + 7260, captions), L"Date");
  }
  EXPECT_EQ(printer.At(1, kOrigin, kFirstRow), L"a.txt");
  EXPECT_EQ(printer.At(1, kOrigin + 3040, kFirstRow), L"C:\\Data");
  EXPECT_EQ(printer.At(1, kOrigin + 7140 - 540, kFirstRow), L"12 kb");
  EXPECT_EQ(printer.At(1, kOrigin + 7260, kFirstRow), L"2001/02/03 04:05");
}

TEST_F(FileList, FileListNamesAndFoldersAreShortenedByTheNameRule) {
  Begin(ListingStyle::PathListFile);
  const std::vector<FoundItem> rows = {
      // 1,480 twips: an extension over 493 keeps its dot before "...", which leaves room for five characters.
      {L"abcdefgh.extension", L"C:\\Data\\aaaaaaaaaaaaaaaaaaaaaa", L"", L""},
      {L"abcdefgh.txt", L"C:\\Data\\a.b", L"", L""}};
  writer.FindList(rows);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstRow), L"abcde.......");
  // 2,960 twips: 24 characters, 21 and "...".
  EXPECT_EQ(printer.At(1, kOrigin + 3040, kFirstRow), L"C:\\Data\\aaaaaaaaaaaaa...");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstRow + kLine), L"abcdefgh.txt") << "1,440 fit into 1,480";
}

TEST_F(FileList, FileListsHaveNoClosingLines) {
  Begin(ListingStyle::PathListFile);
  writer.FindList({});
  const std::size_t drawn = printer.Drawn.size();
  writer.EndListing();
  EXPECT_EQ(printer.Drawn.size(), drawn);
  EXPECT_EQ(printer.Ended, 1);
}

TEST_F(FileList, FileListRowsStopWhenTheRunIsCancelled) {
  Begin(ListingStyle::FindWindow);
  tree.Cancelled = true;
  const std::vector<FoundItem> rows(3, {L"a.txt", L"C:\\Data", L"12 kb", L""});
  writer.FindList(rows);
  EXPECT_EQ(printer.Line(1, kFirstRow), L"");
}

TEST_F(FileList, FileListRowsBreakPages) {
  // The first row is at 3,156; row 48 at 13,496.
  Begin(ListingStyle::FindWindow);
  const std::vector<FoundItem> rows(49, {L"a.txt", L"C:\\Data", L"12 kb", L"now"});
  writer.FindList(rows);
  EXPECT_EQ(printer.Line(1, 13'496), L"a.txt|C:\\Data|12 kb|now");
  EXPECT_EQ(printer.Line(2, kCaptions), L"Name|Folder|Size|Date");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"a.txt|C:\\Data|12 kb|now");
}

TEST_F(FileList, FileListHeadersKnowNoFolder) {
  general.Header = L"<%p%l%f%g> %n";
  Begin(ListingStyle::PathListFile);
  EXPECT_NO_THROW(printer.Find(1, L"<> 1"));
}

// --- The end ---

struct ClosingCase {
  ListingStyle Style;
  double Totals;  ///< 0 for none
  double FreeSpace;
};
class ClosingLines : public PageWriter, public ::testing::WithParamInterface<ClosingCase> {};

TEST_P(ClosingLines, AreThoseOfTheStyle) {
  tree.Totals.TotalFiles = 2;
  tree.Totals.TotalDirs = 1;
  tree.Totals.TotalSize = Currency::FromWhole(2048);
  Begin(GetParam().Style).EndListing();
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
  writer.EndListing();
  EXPECT_EQ(printer.At(2, kOrigin, kFirstLine), L"0 files, 0 directories, 0 b ");
  EXPECT_EQ(printer.At(2, kOrigin, kFirstLine + kLine), L"4,882 kb free of 19 Mb.");
}

TEST_F(PageWriter, ACancelledRunPrintsNothing) {
  Begin(ListingStyle::IncludeSubdirectories);
  ListDirectory(L"C:\\Data", 100);
  writer.AbortListing();
  EXPECT_EQ(printer.Ended, 0);
  EXPECT_EQ(printer.Aborted, 1);
}

TEST_F(PageWriter, AbortingWithoutABeginningDoesNothing) {
  writer.AbortListing();
  EXPECT_EQ(printer.Aborted, 0);
}

TEST_F(PageWriter, OneRunFollowsAnother) {
  Begin(ListingStyle::NoSubdirectories).EndListing();
  Begin(ListingStyle::NoSubdirectories).EndListing();
  EXPECT_EQ(printer.Ended, 2);
  EXPECT_EQ(printer.Aborted, 0);
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
    writer.EndListing();
    FAIL() << "the failure went unnoticed";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Action(), FailedAction::Print);
    EXPECT_EQ(error.Object(), L"Laser");
    EXPECT_FALSE(error.SystemText().empty());
    EXPECT_NE(error.SystemCode(), 0U);
  }
  writer.AbortListing();
  EXPECT_EQ(printer.Ended, 0);
  EXPECT_EQ(printer.Aborted, GetParam().Aborted);
  printer.Failure = fakes::PrinterFailure::None;
  Begin(ListingStyle::NoSubdirectories).EndListing();
  EXPECT_EQ(printer.Ended, 1) << "the next run prints";
}

INSTANTIATE_TEST_SUITE_P(Where, PrinterFailures,
                         ::testing::Values(FailureCase{"Open", fakes::PrinterFailure::Open, 1, 0},
                                           FailureCase{"Font", fakes::PrinterFailure::SelectFont, 1, 1},
                                           FailureCase{"Draw", fakes::PrinterFailure::Draw, 1, 1},
                                           FailureCase{"DrawLater", fakes::PrinterFailure::Draw, 2, 1},
                                           FailureCase{"NewPage", fakes::PrinterFailure::NewPage, 1, 1},
                                           FailureCase{"End", fakes::PrinterFailure::EndDocument, 2, 1}),
                         [](const auto& instance) { return std::string(instance.param.Name); });

// --- Through the driver, and cost ---

TEST_F(PageWriter, TheDriverSendsPrintedListingsHere) {
  OutputDriver driver(run);
  format.ListingStyle = ListingStyle::NoSubdirectories;
  driver.BeginListing();
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
