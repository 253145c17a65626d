// What each listing style looks like on a printed page.
#include "output/PageFixture.h"

namespace folivant {
namespace {

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
  EXPECT_EQ(printer.Line(1, kFirstEntry), L"Entry.txt|short.txt|1,024 b |2001/02/03 04:05| a   ");
  EXPECT_EQ(printer.Line(1, kFirstEntry + kLine), L"Entry.txt|short.txt|1,024 b |2001/02/03 04:05| a   ");
  EXPECT_EQ(printer.Line(1, kFirstEntry + 2 * kLine), L"");
  const fakes::DrawnText& summary = printer.Find(1, L"the summary");
  EXPECT_EQ(summary.X, kOrigin + 20);
  EXPECT_EQ(summary.Y, kFirstEntry + 3 * kLine);
  EXPECT_FALSE(summary.Font->Bold);
}

TEST_F(PageWriter, SizesEndAtTheSizeColumn) {
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"Entry.txt");
  EXPECT_EQ(printer.At(1, kOrigin + 3960, kFirstEntry), L"short.txt");
  // "1,024 b " is 6 x 120 + 2 x 60 = 840 wide and ends at 6,420.
  EXPECT_EQ(printer.At(1, kOrigin + 5580, kFirstEntry), L"1,024 b ");
  EXPECT_EQ(printer.At(1, kOrigin + 6540, kFirstEntry), L"2001/02/03 04:05");
  EXPECT_EQ(printer.At(1, kOrigin + 8520, kFirstEntry), L" a   ");
}

TEST_F(PageWriter, ColumnsThatAreOffAreNotDrawn) {
  Format.Files = {false, false, true, false, false};
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
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"Averyveryveryverylongfile....txt");
}

TEST_F(PageWriter, NamesAreMeasuredAndNotCounted) {
  // Blanks are half as wide: 43 characters, 4,500 twips. What stays before "..." and ".txt" (840) is 3,000 twips, ten
  // groups of 300 with their blank, 30 characters.
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1, L"aa aa aa aa aa aa aa aa aa aa aa aa aa aa.txt");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"Aa aa aa aa aa aa aa aa aa aa ....txt");
}

TEST_F(PageWriter, ANameThatJustFitsStaysWhole) {
  const std::wstring name = L"N" + std::wstring(31, L'n');
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data", 1, name);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), name);
}

TEST_F(PageWriter, AHeadingIsShortenedAsAWholeToThePageLessTheMargins) {
  // 12,000 - 2,880 = 9,120. In bold "Directory " is 1,240 wide, 60 characters are 7,800 and 61 are 7,930.
  const std::wstring fits = L"C:\\" + std::wstring(50, L'd') + L"\\leaf12";
  ASSERT_EQ(fits.size(), 60U);
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(fits, 0);
  ListDirectory(L"C:\\" + std::wstring(51, L'd') + L"\\leaf12", 0);
  EXPECT_NO_THROW(printer.Find(1, L"Directory " + fits));
  // "Directory C:\" is 1,630 and "...\leaf12" 1,300: of the 6,190 between them 47 characters take 6,110.
  EXPECT_NO_THROW(printer.Find(1, L"Directory C:\\" + std::wstring(47, L'd') + L"...\\leaf12"));
}

TEST_F(PageWriter, HeadingsIgnoreTheBorders) {
  printer.Area = {11000, 16000, 500, 0, 500, 0};
  // 11,000 - 2,880 = 8,120 although a line holds 9,120: 52 bold characters beside "Directory " are 8,000.
  const std::wstring fits = L"C:\\" + std::wstring(42, L'd') + L"\\leaf12";
  ASSERT_EQ(fits.size(), 52U);
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(fits, 0);
  ListDirectory(L"C:\\" + std::wstring(43, L'd') + L"\\leaf12", 0);
  EXPECT_NO_THROW(printer.Find(1, L"Directory " + fits));
  // Of 5,190 twips 39 characters take 5,070.
  EXPECT_NO_THROW(printer.Find(1, L"Directory C:\\" + std::wstring(39, L'd') + L"...\\leaf12"));
}

TEST_F(PageWriter, AHeadingKeepsTheEndOfANameThatIsTooWideForTheLine) {
  // Beside the dots, which are 390 wide, 8,730 twips hold 67 characters.
  const std::wstring name = std::wstring(200, L'n') + L" end";
  Begin(ListingStyle::NoSubdirectories);
  ListDirectory(L"C:\\Data\\" + name, 0);
  // The blank is 70 wide and the 66 characters 8,580.
  EXPECT_NO_THROW(printer.Find(1, L"..." + std::wstring(63, L'n') + L" end"));
}

TEST_F(PageWriter, ATreesHeadingIsShortenedLikewise) {
  Begin(ListingStyle::TreeStyle);
  writer->BeginTree(L"C:\\" + std::wstring(51, L'd') + L"\\leaf12");
  EXPECT_NO_THROW(printer.Find(1, L"Directory C:\\" + std::wstring(47, L'd') + L"...\\leaf12"));
}

// --- Tree style ---

TEST_F(PageWriter, TreeEntriesAreIndentedUnderOneHeading) {
  Begin(ListingStyle::TreeStyle);
  writer->BeginTree(L"C:\\Data");
  writer->TreeEntry(Entry(L"sub"));
  writer->TreeEntry(Entry(L"deep.txt", 2));
  EXPECT_EQ(printer.Find(1, L"Directory C:\\Data").Y, kFirstHeading);
  EXPECT_EQ(printer.Line(1, kFirstHeading + 2 * kLine), L"Name|DosName|Size|Date|Attr");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"Sub");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry + kLine), L"      Deep.txt");
}

TEST_F(PageWriter, ATreeEntrysIndentCountsForItsWidth) {
  // Six blanks are 360 wide, so of 32 characters 29 fit: 22 + "..." + ".txt".
  Begin(ListingStyle::TreeStyle);
  writer->TreeEntry(Entry(L"averyveryveryverylongfilename.txt", 2));
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"      Averyveryveryverylongf....txt");
}

TEST_F(PageWriter, OnlyTheTreeStyleIndents) {
  Begin(ListingStyle::IncludeSubdirectories);
  const std::vector<FileRecord> records = {Entry(L"deep.txt", 2)};
  const std::vector<std::uint32_t> order = {0};
  writer->ListDirectory({L"C:\\Data\\a\\b", 2, records, order, L""});
  EXPECT_EQ(printer.At(1, kOrigin, kFirstEntry), L"Deep.txt");
}

// --- Full-path list ---

TEST_F(PageWriter, AFullPathListHasOneLinePerEntryAndNoCaptions) {
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\Data", 2, L"a.txt");
  writer->EndListing();
  EXPECT_EQ(printer.Line(1, kCaptions), L"");
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\Data\\A.txt");
  EXPECT_EQ(printer.Line(1, kFirstLine + kLine), L"C:\\Data\\A.txt");
  EXPECT_EQ(printer.Drawn.size(), 4U) << "footer, header and the two lines: no heading, summary or totals";
}

TEST_F(PageWriter, AFullPathIsShortenedToTheWholeWidth) {
  // 9,120 twips are 76 characters, but a path must be narrower.
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\" + std::wstring(65, L'd'), 1, L"a.text");  // 75 characters
  ListDirectory(L"C:\\" + std::wstring(66, L'd'), 1, L"a.text");  // 76
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\" + std::wstring(65, L'd') + L"\\A.text");
  EXPECT_EQ(printer.Line(1, kFirstLine + kLine), L"C:\\" + std::wstring(62, L'd') + L"...\\A.text");
}

TEST_F(PageWriter, AFullPathListBreaksThePageBeforeALine) {
  // Line 52 is at 2,276 + 51 x 220 = 13,496, line 53 would be at 13,716.
  Begin(ListingStyle::FullPathList);
  ListDirectory(L"C:\\", 52, L"a");
  EXPECT_EQ(printer.Pages, 1) << "no page is begun for a line that does not come";
  ListDirectory(L"C:\\", 1, L"b");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"C:\\B");
}

// --- Directory view ---

TEST_F(PageWriter, DirectoryViewNumbersEndAtTheirColumns) {
  // "  0.000 kb" is 1,020 wide and "  000.000" 960, so the ends are 9,120, 8,100, 7,140 and 6,120.
  Begin(ListingStyle::DirectoryView);
  writer->DirectoryViewEntry(Node(L"C:\\Data", 0));
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
  Texts.Set(static_cast<std::size_t>(TextId::TotalSizeCaption), L"Total size");
  Begin(ListingStyle::DirectoryView);
  EXPECT_EQ(printer.Line(1, kCaptions), L"Where|Files|Bytes|All|Total...");
  EXPECT_EQ(printer.At(1, kOrigin + 9120 - 960, kCaptions), L"Total...");
}

TEST_F(PageWriter, DirectoryViewNamesAreIndentedAndShortened) {
  // The name width is 6,120 - 960 = 5,160: 43 characters, or 41 and one level's three blanks with 60 to spare.
  Begin(ListingStyle::DirectoryView);
  writer->DirectoryViewEntry(Node(L"sub", 2));
  writer->DirectoryViewEntry(Node(std::wstring(42, L'n'), 1));
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"      sub");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine + kLine), L"   " + std::wstring(38, L'n') + L"...");
}

TEST_F(PageWriter, TheStartDirectoryIsShortenedAsAPath) {
  Begin(ListingStyle::DirectoryView);
  writer->DirectoryViewEntry(Node(L"C:\\" + std::wstring(40, L'd') + L"\\leaf", 0));
  // Narrower than 43 characters: 34 + "..." + "\leaf".
  EXPECT_EQ(printer.At(1, kOrigin, kFirstLine), L"C:\\" + std::wstring(31, L'd') + L"...\\leaf");
}

TEST_F(PageWriter, DirectoryViewShowsOnlyItsChosenColumns) {
  Format.Directories = {true, false, false, true};
  Begin(ListingStyle::DirectoryView);
  writer->DirectoryViewEntry(Node(L"C:\\Data", 0));
  EXPECT_EQ(printer.Line(1, kCaptions), L"Where|Files|Sum");
  EXPECT_EQ(printer.At(1, kOrigin + 8100 - 120, kFirstLine), L"7");
  EXPECT_EQ(printer.Line(1, kFirstLine), L"C:\\Data|7|4,882 kb");
}

TEST_F(PageWriter, DirectoryViewLinesBreakPagesToo) {
  Begin(ListingStyle::DirectoryView);
  for (int i = 0; i < 53; ++i) {
    writer->DirectoryViewEntry(Node(L"sub", 1));
  }
  EXPECT_EQ(printer.Line(1, 13'496), L"   sub|7|9,999 b |1,234|4,882 kb");
  EXPECT_EQ(printer.Line(1, 13'716), L"");
  EXPECT_EQ(printer.Line(2, kCaptions), L"Where|Files|Bytes|All|Sum");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"   sub|7|9,999 b |1,234|4,882 kb");
}

// --- File lists ---

class FileList : public PageWriter {
 protected:
  void List(const std::vector<FoundItem>& rows) { writer->FindList({L"Found files", rows}); }
  // The title, an empty line, the captions, an empty line.
  static constexpr double kFirstRow = kFirstLine + 4 * kLine;
};

TEST_F(FileList, FileListsHaveTheirTitleCaptionsAndRows) {
  // Date 9,120 - 1,860 = 7,260; size end 7,140; a size begins at 7,140 - 1,260 = 5,880; name width (5,880 - 1,440) / 3
  // = 1,480; folder 120 + 1,440 + 1,480 = 3,040, drawn at 1,440 + 3,040: the margin counts twice.
  Begin(ListingStyle::FindWindow);
  const std::vector<FoundItem> rows = {{L"a.txt", L"C:\\Data", L"12 kb", L"2001/02/03 04:05"}};
  List(rows);
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
  List(rows);
  EXPECT_EQ(printer.At(1, kOrigin, kFirstRow), L"abcde.......");
  // 2,960 twips: 24 characters, 21 and "...".
  EXPECT_EQ(printer.At(1, kOrigin + 3040, kFirstRow), L"C:\\Data\\aaaaaaaaaaaaa...");
  EXPECT_EQ(printer.At(1, kOrigin, kFirstRow + kLine), L"abcdefgh.txt") << "1,440 fit into 1,480";
}

TEST_F(FileList, FileListsHaveNoClosingLines) {
  Begin(ListingStyle::PathListFile);
  List({});
  const std::size_t drawn = printer.Drawn.size();
  writer->EndListing();
  EXPECT_EQ(printer.Drawn.size(), drawn);
  EXPECT_EQ(printer.Ended, 1);
}

TEST_F(FileList, FileListRowsStopWhenTheRunIsCancelled) {
  Begin(ListingStyle::FindWindow);
  Run.Cancelled = true;
  const std::vector<FoundItem> rows(3, {L"a.txt", L"C:\\Data", L"12 kb", L""});
  List(rows);
  EXPECT_EQ(printer.Line(1, kFirstRow), L"");
}

TEST_F(FileList, FileListRowsBreakPages) {
  // The first row is at 3,156; row 48 at 13,496.
  Begin(ListingStyle::FindWindow);
  const std::vector<FoundItem> rows(49, {L"a.txt", L"C:\\Data", L"12 kb", L"now"});
  List(rows);
  EXPECT_EQ(printer.Line(1, 13'496), L"a.txt|C:\\Data|12 kb|now");
  EXPECT_EQ(printer.Line(2, kCaptions), L"Name|Folder|Size|Date");
  EXPECT_EQ(printer.Line(2, kFirstLine), L"a.txt|C:\\Data|12 kb|now");
}

TEST_F(FileList, FileListHeadersKnowNoFolder) {
  General.Header = L"<%p%l%f%g> %n";
  Begin(ListingStyle::PathListFile);
  EXPECT_NO_THROW(printer.Find(1, L"<> 1"));
}

}  // namespace
}  // namespace folivant
