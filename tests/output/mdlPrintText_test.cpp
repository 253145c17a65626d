#include "output/mdlPrintText.h"

#include <gmock/gmock.h>

#include "output/WriterFixture.h"

namespace folivant {
namespace {

class PlainText : public WriterFixture {
 protected:
  /// The line of one entry of a tree.
  std::string EntryLine(ListingWriter& writer, const FileRecord& entry) {
    Style(ListingStyle::TreeStyle);
    writer.BeginListing(Run);
    writer.BeginTree(L"C:\\Data");
    writer.TreeEntry(entry);
    writer.AbortListing();
    return Lines().back();
  }
  /// The line of captions of a listing that lists nothing.
  std::string CaptionLine() {
    plain_->BeginListing(Run);
    plain_->BeginTree(L"C:\\Data");
    plain_->AbortListing();
    return Lines().at(6);
  }
  std::unique_ptr<ListingWriter> plain_ = MakeTextWriter(kPlainText);
  std::unique_ptr<ListingWriter> tab_ = MakeTextWriter(kTabDelimited);
  std::unique_ptr<ListingWriter> csv_ = MakeTextWriter(kCsv);
};

TEST_F(PlainText, LeavesTheNameWhatTheColumnsDoNotTake) {
  // 80 - 14 - 10 - 18 - 6 = 32
  EXPECT_EQ(EntryLine(*plain_, File(L"a.txt")),
            "A.txt                             short.nam     1,234 b   2026/01/02 03:04   a   ");
}

TEST_F(PlainText, ShortensALongName) {
  EXPECT_EQ(EntryLine(*plain_, File(L"averyveryveryverylongfilenamewithtext.txt")),
            "Averyveryveryverylongfile....txt  short.nam     1,234 b   2026/01/02 03:04   a   ");
}

TEST_F(PlainText, GivesANameWithoutDotThreeDotsAtItsEnd) {
  Format.Files = {.Name = true};
  General.TextWidth = 12;
  EXPECT_EQ(EntryLine(*plain_, File(L"longer than twelve")), "Longer th...");
}

TEST_F(PlainText, TakesTheWholeLineForTheNameAlone) {
  Format.Files = {.Name = true};
  General.TextWidth = 10;
  EXPECT_EQ(EntryLine(*plain_, File(L"a.txt")), "A.txt     ");
}

TEST_F(PlainText, CountsWidthsBelowZeroAsZero) {
  Format.Files = {.Name = true, .Size = true};
  for (const int width : {0, 5, -7, std::numeric_limits<std::int32_t>::min()}) {
    General.TextWidth = width;
    EXPECT_EQ(EntryLine(*plain_, File(L"a.txt")), "  1,234 b ") << width;
  }
}

TEST_F(PlainText, CutsALongSizeFromTheLeft) {
  Format.Files = {.Size = true};
  Texts.Set(static_cast<std::size_t>(TextId::DirectorySizeText), L"<DIRECTORY>");
  EXPECT_EQ(EntryLine(*plain_, Directory(L"a")), "  TORY>   ");
  fakes::Fake().Locale.ThousandsSeparator = L"::";
  EXPECT_EQ(EntryLine(*plain_, File(L"a")), "  ::234 b ") << "9 characters";
}

TEST_F(PlainText, CutsALongDosNameAndDateFromTheRight) {
  Format.Files = {.DosName = true, .Date = true};
  FileRecord entry = File(L"a");
  entry.AlternateName = L"LONGER-THAN-IT.SHOULD-BE";
  DatePattern = L"dd/mm/yy";
  EXPECT_EQ(EntryLine(*plain_, entry), "  longer-than-  02/01/26 03:04  ");
  fakes::Fake().Locale.DateSeparator = L" - ";
  EXPECT_EQ(EntryLine(*plain_, entry), "  longer-than-  02 - 01 - 26 03:");
}

TEST_F(PlainText, LaysCaptionsOutLikeTheirColumns) {
  EXPECT_EQ(CaptionLine(), "Name                              MS-DOS name       Size  Date              Attr");
}

TEST_F(PlainText, CutsTheNameCaptionToItsColumn) {
  Format.Files = {.Name = true};
  General.TextWidth = 3;
  EXPECT_EQ(CaptionLine(), "Nam");
}

TEST_F(PlainText, IndentsATreeByThreeBlanksPerLevel) {
  Format.Files = {.Name = true};
  General.TextWidth = 16;
  FileRecord entry = File(L"name.txt");
  entry.Level = 2;
  EXPECT_EQ(EntryLine(*plain_, entry), "      Name.txt  ");
  entry.Level = 3;
  EXPECT_EQ(EntryLine(*plain_, entry), "         ....txt") << "the indent is a part of what is shortened";
}

TEST_F(PlainText, DoesNotIndentOutsideATree) {
  Style(ListingStyle::IncludeSubdirectories);
  Format.Files = {.Name = true};
  General.TextWidth = 6;
  FileRecord entry = File(L"a.txt");
  entry.Level = 2;
  plain_->BeginListing(Run);
  List(*plain_, L"C:\\Data\\A\\B", {entry}, 2);
  plain_->AbortListing();
  EXPECT_EQ(Lines().at(8), "A.txt ");
}

TEST_F(PlainText, HasAFixedGapBeforeTheFirstViewCaptions) {
  Style(ListingStyle::DirectoryView);
  Texts.Set(static_cast<std::size_t>(TextId::DirectoryCaption), L"Verzeichnis");
  Texts.Set(static_cast<std::size_t>(TextId::FilesCaption), L"Dateien");
  Texts.Set(static_cast<std::size_t>(TextId::DirectorySizeCaption), L"Byte");
  Texts.Set(static_cast<std::size_t>(TextId::TotalFilesCaption), L"Alle");
  Texts.Set(static_cast<std::size_t>(TextId::TotalSizeCaption), L"Gesamtgroesse");
  General.TextWidth = 55;
  plain_->BeginListing(Run);
  plain_->BeginDirectoryView();
  plain_->AbortListing();
  // 55 - 40 = 15 for the name: 6 blanks after its caption, 5 and 6 before the next two, the others to the right in 10.
  EXPECT_EQ(Lines().at(3), "Verzeichnis           Dateien      Byte      AlleGesamtgroesse");
}

TEST_F(PlainText, AlignsTheValuesOfADirectoryToTheRight) {
  Style(ListingStyle::DirectoryView);
  General.TextWidth = 60;
  plain_->BeginListing(Run);
  plain_->BeginDirectoryView();
  plain_->DirectoryViewEntry({L"A long directory name", L"", 1, 1'234, Currency::FromWhole(12'345), 1'234'567,
                              Currency::FromWhole(5'000'000'000)});
  plain_->AbortListing();
  EXPECT_EQ(Lines().at(4), "   A long directo...     1,234     12 kb 1,234,567  4,768 Mb");
}

TEST_F(PlainText, RoundsTheFractionOfAFileListsWidth) {
  Style(ListingStyle::FindWindow);
  General.TextWidth = 79;  // 15.67 for the name and 31.33 for the folder
  plain_->BeginListing(Run);
  const FoundItem row = {L"abcdefghijklmnop", L"C:\\a folder of 32 characters.....", L"1 kb", L"today"};
  plain_->FindList({L"Found", {row}});
  plain_->AbortListing();
  // 12.67 rounds to 13 characters of the name, which makes 16. The folder's extension is its last dot: 27.33 rounds to
  // 27 characters, and with it 31.
  EXPECT_EQ(Lines().back(), "abcdefghijklm...  C:\\a folder of 32 character....      1 kb  today           ");
}

TEST_F(PlainText, TheDateOfAFileListHasTheWidthOfDates) {
  Style(ListingStyle::FindWindow);
  plain_->BeginListing(Run);
  const FoundItem row = {L"a", L"b", L"1 kb", L"12/31/2026 11:59:59 PM, in summer time"};
  plain_->FindList({L"Found", {row}});
  plain_->AbortListing();
  EXPECT_TRUE(Lines().back().ends_with("    1 kb  12/31/2026 11:59"));
}

TEST_F(PlainText, ListsNothingButCaptionsForAnEmptyFindWindow) {
  Style(ListingStyle::FindWindow);
  csv_->BeginListing(Run);
  csv_->FindList({L"Find: nothing", {}});
  csv_->EndListing();
  EXPECT_EQ(Lines(), (std::vector<std::string>{";", "", "", "Find: nothing", "", "Name;Folder;Size;Date;", ""}));
}

TEST_F(PlainText, EndsDelimitedLinesInASeparator) {
  EXPECT_EQ(EntryLine(*tab_, File(L"a.txt")), "A.txt\tshort.nam\t1,234 b\t2026/01/02 03:04\ta\t");
  EXPECT_EQ(EntryLine(*csv_, File(L"a.txt")), "A.txt;short.nam;1,234 b;2026/01/02 03:04;a;");
}

TEST_F(PlainText, NeverQuotesCsv) {
  Format.Files = {.Name = true, .Attributes = true};
  EXPECT_EQ(EntryLine(*csv_, File(L"a;\"b\".txt")), "A;\"b\".txt;a;");
}

TEST_F(PlainText, NeverShortensDelimitedNames) {
  Format.Files = {.Name = true};
  General.TextWidth = 5;
  EXPECT_EQ(EntryLine(*csv_, File(L"a rather long name.txt")), "A rather long name.txt;");
}

TEST_F(PlainText, KeepsTheIndentOfDelimitedTrees) {
  Format.Files = {.Name = true};
  FileRecord entry = File(L" a ");
  entry.Level = 1;
  EXPECT_EQ(EntryLine(*tab_, entry), "   a\t") << "the blanks of the name itself go";
}

TEST_F(PlainText, TrimsTheIndentOfADelimitedDirectoryView) {
  Style(ListingStyle::DirectoryView);
  Format.Directories = {.Files = true};
  csv_->BeginListing(Run);
  csv_->BeginDirectoryView();
  csv_->DirectoryViewEntry({L"Sub", L"C:\\Data\\Sub", 2, 3, {}, 3, {}});
  csv_->AbortListing();
  EXPECT_EQ(Lines().back(), "Sub;3;");
}

TEST_F(PlainText, KeepsAnEmptyFieldsSeparator) {
  Format.Files = {.Name = true, .Attributes = true};
  FileRecord entry = File(L"   ");
  entry.Attributes = 0;
  EXPECT_EQ(EntryLine(*csv_, entry), ";;");
}

TEST_F(PlainText, KeepsTheBlanksInsideAField) {
  General.Header = L" h h ";
  Texts.Set(static_cast<std::size_t>(TextId::DirectoryCaption), L"d d");
  Texts.Set(static_cast<std::size_t>(TextId::FilesCaption), L"f f");
  Texts.Set(static_cast<std::size_t>(TextId::NameCaption), L"n n");
  Texts.Set(static_cast<std::size_t>(TextId::SizeCaption), L"s s");
  Style(ListingStyle::DirectoryView);
  Format.Directories = {.Files = true};
  csv_->BeginListing(Run);
  csv_->BeginDirectoryView();
  csv_->DirectoryViewEntry({L"a b", L"", 1, 7, {}, 7, {}});
  csv_->AbortListing();
  EXPECT_EQ(Written(), "h h;\r\n\r\n\r\nd d;f f;\r\na b;7;\r\n");

  Style(ListingStyle::NoSubdirectories);
  Format.Files = {.Name = true, .Size = true};
  FileRecord entry = File(L"a b");
  entry.Size = 1;
  csv_->BeginListing(Run);
  List(*csv_, L"C:\\", {entry});
  csv_->AbortListing();
  EXPECT_THAT(Written(), testing::EndsWith("\r\nn n;s s;\r\n\r\nA b;1 b;\r\n\r\nthe summary;\r\n\r\n"));
}

TEST_F(PlainText, TrimsBlanksOnly) {
  Format.Files = {.Name = true};
  EXPECT_EQ(EntryLine(*csv_, File(L" \u00a0a\u00a0 ")),
            "\xa0"
            "a\xa0;");
}

TEST_F(PlainText, PutsTheHeaderThroughTheFieldFilter) {
  General.Header = L"  %p  ";
  csv_->BeginListing(Run);
  csv_->AbortListing();
  EXPECT_EQ(Written(), "C:\\Data;\r\n\r\n\r\n");
  plain_->BeginListing(Run);
  plain_->AbortListing();
  EXPECT_EQ(Written(), "  C:\\Data  \r\n\r\n\r\n");
}

TEST_F(PlainText, HasNeitherHeaderNorTotalsInAFullPathList) {
  Style(ListingStyle::FullPathList);
  plain_->BeginListing(Run);
  List(*plain_, L"C:\\", {File(L"a b.txt")});
  List(*plain_, L"C:\\Sub", {File(L"c")});
  plain_->EndListing();
  EXPECT_EQ(Written(), "C:\\A b.txt\r\nC:\\Sub\\C\r\n");
}

TEST_F(PlainText, FollowsTheListingOrder) {
  Style(ListingStyle::FullPathList);
  const FileRecord records[] = {File(L"first"), File(L"second"), File(L"third")};
  const std::uint32_t order[] = {2, 0, 1};
  plain_->BeginListing(Run);
  plain_->ListPaths({L"C:\\", 0, records, order, L""});
  plain_->EndListing();
  EXPECT_EQ(Lines(), (std::vector<std::string>{"C:\\Third", "C:\\First", "C:\\Second"}));
}

TEST_F(PlainText, KeepsTheLineOfAFreeSpaceThatNobodyKnows) {
  fakes::Fake().FreeSpace.clear();
  Style(ListingStyle::NoSubdirectories);
  plain_->BeginListing(Run);
  plain_->EndListing();
  EXPECT_EQ(Written(), "C:\\Data\r\n\r\n\r\n\r\n");
  csv_->BeginListing(Run);
  csv_->EndListing();
  EXPECT_EQ(Written(), "C:\\Data;\r\n\r\n\r\n;\r\n");
}

TEST_F(PlainText, WritesNoFooter) {
  General.Footer = L"the footer";
  Style(ListingStyle::IncludeSubdirectories);
  plain_->BeginListing(Run);
  plain_->EndListing();
  EXPECT_EQ(Written().find("the footer"), std::string::npos);
}

TEST_F(PlainText, SurvivesUnpairedSurrogates) {
  Format.Files = {.Name = true};
  General.TextWidth = 8;
  const std::wstring name = {L'a', static_cast<wchar_t>(0xD800), L'b', static_cast<wchar_t>(0xDC00), L'c'};
  EXPECT_EQ(EntryLine(*plain_, File(name)), "A?b?c   ");
}

}  // namespace
}  // namespace folivant
