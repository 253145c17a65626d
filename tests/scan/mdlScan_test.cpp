#include "scan/mdlScan.h"

#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;

using MdlScanTest = ListingTest;

TEST_F(MdlScanTest, SetStartPathNormalisesThePath) {
  Tree().Dir(L"C:\\Program Files\\TOOLS");
  EXPECT_TRUE(SetStart(L"c:\\program files\\tools\\"));
  EXPECT_EQ(Start.Shown, L"C:\\Program Files\\Tools");
  EXPECT_EQ(Start.OnDisk, L"C:\\Program Files\\TOOLS");
}

TEST_F(MdlScanTest, SetStartPathTurnsAFileListIntoAListingWithoutSubdirectories) {
  Tree().Dir(L"C:\\Data");
  for (const ListingStyle style : {ListingStyle::FindWindow, ListingStyle::PathListFile}) {
    Format.ListingStyle = style;
    EXPECT_TRUE(SetStart(L"C:\\Data"));
    EXPECT_EQ(Format.ListingStyle, kFlat);
  }
  Format.ListingStyle = kTree;
  EXPECT_TRUE(SetStart(L"C:\\Data"));
  EXPECT_EQ(Format.ListingStyle, kTree);
}

TEST_F(MdlScanTest, SetStartPathChangesNothingForAPathThatIsNotUsable) {
  Tree().Dir(L"C:\\Data");
  ASSERT_TRUE(SetStart(L"C:\\Data"));
  Format.ListingStyle = ListingStyle::FindWindow;
  EXPECT_FALSE(SetStart(L"C:\\Missing"));
  EXPECT_FALSE(SetStart(L"\\\\server"));
  EXPECT_EQ(Start.Shown, L"C:\\Data");
  EXPECT_EQ(Format.ListingStyle, ListingStyle::FindWindow);
}

TEST_F(MdlScanTest, TotalsStartAfreshInEveryRun) {
  Tree().Dir(L"C:\\Data").File(L"a", 10);
  List(kDeep);
  List(kDeep);
  EXPECT_EQ(Run.Totals.TotalFiles, 1);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 10);
}

TEST_F(MdlScanTest, ARunKeepsItsLocalOffsetAndTheNextOneAsksAgain) {
  Tree().Dir(L"C:\\Data").File(L"a.txt");
  Tree().Dir(L"C:\\Data\\Sub").File(L"b.txt");
  Writer.Details = true;
  Watcher.OnDirectory = [](std::wstring_view) { fakes::Fake().LocalOffsetMinutes += 60; };
  const auto timesOf = [&] {
    std::vector<std::wstring> times;
    for (const std::wstring& event : List(kDeep)) {
      const std::wstring day = L"2001/02/03 ";
      for (std::size_t at = event.find(day); at != event.npos; at = event.find(day, at + 1)) {
        times.push_back(event.substr(at + day.size(), 5));
      }
    }
    return times;
  };
  EXPECT_THAT(timesOf(), ElementsAre(L"04:05", L"04:05", L"04:05"));  // two files and a directory
  EXPECT_THAT(timesOf(), ElementsAre(L"06:05", L"06:05", L"06:05"));
}

TEST_F(MdlScanTest, ARunAfterACancelledOneIsNotCancelled) {
  Tree().Dir(L"C:\\Data\\Locked").Unreadable();
  Watcher.CancelNow = true;
  List(kDeep);
  ASSERT_TRUE(Run.Cancelled && !Run.Unread.empty());
  Watcher.CancelNow = false;
  EXPECT_EQ(List(kFlat).back(), L"end");
  EXPECT_FALSE(Run.Cancelled);
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(MdlScanTest, EventsRunWhileATreeIsWritten) {
  Tree().Dir(L"C:\\Data").File(L"a").File(L"b").File(L"c");
  // Before the run; for the directory and its three entries, and before the first line; before each further line.
  EXPECT_THAT(PumpsBetweenEvents(kTree), ElementsAre(1, 0, 4 + 1, 1, 1, 0));
}

TEST_F(MdlScanTest, EventsRunWhileADirectoryViewIsWritten) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B");
  // Before the run; for three directories and two entries, and before the first line; before each further line.
  EXPECT_THAT(PumpsBetweenEvents(kView), ElementsAre(1, 5 + 1, 1, 1, 0));
}

TEST_F(MdlScanTest, TheDatePatternIsChosenAtTheStartOfTheRun) {
  Tree().Dir(L"C:\\Data").File(L"a").Written({1999, 12, 31, 23, 59, 59});
  Writer.Details = true;
  const std::pair<std::int32_t, std::wstring> patterns[] = {{0, L"31/12/99"},   {1, L"12/31/99"},   {2, L"99/12/31"},
                                                            {3, L"31/12/1999"}, {4, L"12/31/1999"}, {5, L"1999/12/31"}};
  for (const auto& [format, date] : patterns) {
    General.DateFormat = format;
    EXPECT_EQ(List(kFlat).at(1), L"0 C:\\Data: A||0 b |" + date + L" 23:59| a    (1 file, 0 b )");
  }
}

TEST_F(MdlScanTest, AnUnknownDateFormatLeavesThePreviousPatternInForce) {
  Tree().Dir(L"C:\\Data");
  General.DateFormat = 4;
  List(kFlat);
  General.DateFormat = 6;
  List(kFlat);
  EXPECT_EQ(DatePattern, L"mm/dd/yyyy");
  General.DateFormat = -1;
  List(kFlat);
  EXPECT_EQ(DatePattern, L"mm/dd/yyyy");
}

TEST_F(MdlScanTest, AnErrorOfTheWriterClosesItAndReachesTheCaller) {
  Tree().Dir(L"C:\\Data\\Sub").File(L"a");
  const std::pair<ListingStyle, std::size_t> failures[] = {
      {kDeep, 1}, {kDeep, 2}, {kTree, 3}, {kView, 2}, {kView, 3}};  // the event at which the writer fails
  for (const auto& [style, failing] : failures) {
    Writer.OnEvent = [&, last = failing] {
      if (Writer.Events.size() == last) {
        throw RuntimeError(FailedAction::WriteFile, L"D:\\list.txt", L"The disk is full.", 112);
      }
    };
    EXPECT_THROW(List(style), RuntimeError);
    EXPECT_EQ(Writer.Events.size(), failing + 1);
    EXPECT_EQ(Writer.Events.back(), L"abort");
  }
}

TEST_F(MdlScanTest, AnErrorAtTheEndOfTheListingClosesTheWriterToo) {
  Tree().Dir(L"C:\\Data");
  Writer.OnEvent = [&] {
    if (Writer.Events.back() == L"end") {
      throw RuntimeError(FailedAction::WriteFile, L"D:\\list.txt", L"The disk is full.", 112);
    }
  };
  EXPECT_THROW(List(kDeep), RuntimeError);
  EXPECT_THAT(Writer.Events, ElementsAre(L"begin", L"0 C:\\Data: (0 files, 0 b )", L"end", L"abort"));
}

TEST_F(MdlScanTest, TheFileListsAreRowsOfTheirSource) {
  Rows.Rows = {L"Find: all", {{L"a", L"C:\\", L"1 b ", L"today"}, {L"b", L"D:\\", L"", L""}}};
  for (const ListingStyle style : {ListingStyle::FindWindow, ListingStyle::PathListFile}) {
    Format.ListingStyle = style;
    Writer.Events.clear();
    RunListing(Run, Writer, Rows);
    EXPECT_THAT(Writer.Events, ElementsAre(L"begin", L"find Find: all: 2", L"end"));
  }
}

TEST_F(MdlScanTest, RowsOfACancelledRunAreNotListed) {
  Format.ListingStyle = ListingStyle::FindWindow;
  Watcher.CancelNow = true;
  RunListing(Run, Writer, Rows);
  EXPECT_THAT(Writer.Events, ElementsAre(L"begin", L"abort"));
  EXPECT_TRUE(Run.Cancelled);
}

TEST_F(MdlScanTest, WithTheDateTestOffDatesShiftByTheLocalOffsetOnce) {
  Tree().Dir(L"C:\\Data").File(L"a").Written({2000, 1, 1, 12, 0, 0});
  fakes::Fake().LocalOffsetMinutes = 120;
  Writer.Details = true;
  EXPECT_THAT(List(kFlat).at(1), testing::HasSubstr(L"|2000/01/01 14:00|"));
}

TEST_F(MdlScanTest, WithTheDateTestOnDatesShiftThreeTimes) {
  Tree().Dir(L"C:\\Data").File(L"a").Written({2000, 1, 1, 12, 0, 0});
  fakes::Fake().LocalOffsetMinutes = 120;
  Filter.DateOn = true;
  Filter.DateMin = ToDateValue({1990, 1, 1});
  Filter.DateMax = ToDateValue({2030, 1, 1});
  Writer.Details = true;
  EXPECT_THAT(List(kFlat).at(1), testing::HasSubstr(L"|2000/01/01 18:00|"));
}

TEST_F(MdlScanTest, DirectoriesOfATreeSkipTheDateTestAndShiftOnce) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").Written({2000, 1, 1, 12, 0, 0});
  fakes::Fake().LocalOffsetMinutes = -60;
  Filter.DateOn = true;
  Filter.DateMin = ToDateValue({2010, 1, 1});
  Filter.DateMax = ToDateValue({2030, 1, 1});
  Writer.Details = true;
  EXPECT_THAT(List(kTree).at(2), testing::HasSubstr(L"|2000/01/01 11:00|"));
}

TEST_F(MdlScanTest, ShortNamesAreListedOnlyWhenSomethingShowsThem) {
  Tree().Dir(L"C:\\Data").File(L"Long name.text").Short(L"LONGNA~1.TEX").File(L"SHORT.TXT");
  Writer.Details = true;
  EXPECT_THAT(List(kFlat).at(1), testing::HasSubstr(L": Long name.text||0 b "));
  EXPECT_EQ(fakes::Fake().ShortNamesAsked, 0);
  Format.Files.DosName = true;
  EXPECT_THAT(List(kFlat).at(1), testing::HasSubstr(L": Long name.text|LONGNA~1.TEX|0 b "));
  EXPECT_THAT(List(kFlat).at(1), testing::HasSubstr(L" Short.txt||0 b "));
}

}  // namespace
}  // namespace folivant
