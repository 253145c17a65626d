#include "output/DriverServices.h"

#include "output/WriterFixture.h"

namespace folivant {
namespace {

class Headers : public WriterFixture {
 protected:
  Headers() {
    fakes::Fake().Labels[L"C:\\"] = L"WORK DISK";
    Filter.FilterName = L"*.txt";
    Filter.FilterSize = 5;
    Filter.SizeOn = true;
  }
  std::wstring Expanded(const std::wstring& header) {
    General.Header = header;
    return ExpandHeaderFooter(HeaderFooter::Header, Run);
  }
};

TEST_F(Headers, ReplaceEveryPlaceholder) {
  Filter.NameOn = true;
  General.Header = L"%p|%l|%f|%g|%d|%t|%n";
  EXPECT_EQ(ExpandHeaderFooter(HeaderFooter::Header, Run, 7),
            L"C:\\Data|Work disk|*.txt|*.txt, >5 kb|2026/11/16|14:05|7");
}

TEST_F(Headers, ReplaceEveryOccurrence) {
  EXPECT_EQ(Expanded(L"%n%n and %n"), L"00 and 0");
}

TEST_F(Headers, ShowPageZeroInFiles) {
  EXPECT_EQ(Expanded(L"Page %n of %p"), L"Page 0 of C:\\Data");
}

TEST_F(Headers, LeaveOutThePatternOfAFilterThatIsOff) {
  EXPECT_EQ(Expanded(L"<%f>"), L"<>");
}

TEST_F(Headers, AreCaseSensitiveAndTwoCharactersLong) {
  EXPECT_EQ(Expanded(L"%P %N %x % %%"), L"%P %N %x % %%");
}

TEST_F(Headers, SearchAReplacementForLaterPlaceholders) {
  Start.Shown = L"C:\\%n and %p";
  EXPECT_EQ(Expanded(L"%p"), L"C:\\0 and %p");
}

TEST_F(Headers, DoNotSearchAReplacementForEarlierPlaceholders) {
  Filter.NameOn = true;
  Filter.FilterName = L"%p%l";
  EXPECT_EQ(Expanded(L"%f"), L"%p%l");
}

TEST_F(Headers, KeepOnlyDateTimeAndPageInFileLists) {
  Filter.NameOn = true;
  for (const ListingStyle style : {ListingStyle::FindWindow, ListingStyle::PathListFile}) {
    Style(style);
    EXPECT_EQ(Expanded(L"%p|%l|%f|%g|%d|%t|%n"), L"||||2026/11/16|14:05|0");
  }
}

TEST_F(Headers, ShowHoursAndMinutesWithTwoDigits) {
  fakes::Fake().Now = {2026, 1, 2, 3, 4, 5};
  DatePattern = L"dd/mm/yy";
  EXPECT_EQ(Expanded(L"%d %t"), L"02/01/26 03:04");
}

TEST_F(Headers, AndFootersAreTwoTexts) {
  General.Footer = L"foot %n";
  EXPECT_EQ(ExpandHeaderFooter(HeaderFooter::Footer, Run), L"foot 0");
  EXPECT_EQ(ExpandHeaderFooter(HeaderFooter::Footer, Run, 12), L"foot 12");
}

TEST(DriveLabel, IsReCasedLikeAName) {
  fakes::Fake().Labels = {{L"C:\\", L"SYSTEM"}, {L"D:\\", L"MyData"}};
  EXPECT_EQ(DriveLabel(L"C:\\Data", TestTexts()), L"System");
  EXPECT_EQ(DriveLabel(L"D:\\", TestTexts()), L"MyData");
}

TEST(DriveLabel, HasATextForNone) {
  EXPECT_EQ(DriveLabel(L"E:\\Data", TestTexts()), L"(no label)");
}

TEST(DriveLabel, IsOnlyAskedOfDriveLetters) {
  fakes::Fake().Labels[L"\\\\s"] = L"trap";
  EXPECT_EQ(DriveLabel(L"\\\\server\\share", TestTexts()), L"(no label)");
  EXPECT_EQ(DriveLabel(L"", TestTexts()), L"(no label)");
  EXPECT_EQ(DriveLabel(L"C", TestTexts()), L"(no label)");
}

TEST(FreeSpaceLine, IsEmptyWhenTheSystemCannotTell) {
  EXPECT_EQ(FreeSpaceLine(L"Q:\\nowhere", TestTexts()), L"");
}

TEST(FreeSpaceLine, ReportsMoreThanFourGigabytes) {
  fakes::Fake().FreeSpace[L"C:\\"] = {4'294'967'296 + 2'147'483'648, 8'589'934'592};
  // 6 GB are 6,144 MB; 8 GB are 8,192 MB.
  EXPECT_EQ(FreeSpaceLine(L"C:\\Data", TestTexts()), L"6,144 Mb free of 8,192 Mb.");
}

TEST(FreeSpaceLine, AsksNetworkPathsWithABackslashAtTheirEnd) {
  fakes::Fake().FreeSpace[L"\\\\server\\share\\"] = {1'024, 2'048};
  EXPECT_EQ(FreeSpaceLine(L"\\\\server\\share", TestTexts()), L"1,024 b  free of 2,048 b .");
}

class Closings : public WriterFixture {};

TEST_F(Closings, DependOnTheStyle) {
  Run.Totals = {Currency::FromWhole(5), 1, 1};
  const std::wstring totals = L"1 file, 1 directory, 5 b ";
  const std::wstring space = L"4,768 Mb free of 18 Gb.";
  const std::pair<ListingStyle, std::vector<std::wstring>> rows[] = {
      {ListingStyle::NoSubdirectories, {space}},  {ListingStyle::IncludeSubdirectories, {totals, space}},
      {ListingStyle::TreeStyle, {totals, space}}, {ListingStyle::DirectoryView, {totals, space}},
      {ListingStyle::FullPathList, {}},           {ListingStyle::FindWindow, {}},
      {ListingStyle::PathListFile, {}},
  };
  for (const auto& [style, sentences] : rows) {
    Style(style);
    EXPECT_EQ(ClosingSentences(Run), sentences) << static_cast<int>(style);
  }
}

TEST_F(Closings, AskForTheSpaceOfTheDirectoryOnDisk) {
  fakes::Fake().FreeSpace.clear();
  fakes::Fake().FreeSpace[L"D:\\"] = {1'024, 2'048};
  Start.OnDisk = L"D:\\data";
  Style(ListingStyle::NoSubdirectories);
  EXPECT_EQ(ClosingSentences(Run), std::vector<std::wstring>{L"1,024 b  free of 2,048 b ."});
}

}  // namespace
}  // namespace folivant
