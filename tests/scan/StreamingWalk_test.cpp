#include "scan/StreamingWalk.h"

#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;

using StreamingWalkTest = ListingTest;

TEST_F(StreamingWalkTest, ListsDirectoriesDepthFirstInSortedOrder) {
  Tree().Dir(L"C:\\Data").File(L"z.txt", 1).Folder(L"Two").Folder(L"One").File(L"a.txt", 2);
  Tree().Dir(L"C:\\Data\\One").File(L"x.txt", 3).Folder(L"Deep");
  Tree().Dir(L"C:\\Data\\One\\Deep").File(L"y.txt", 4);
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: One Two A.txt Z.txt (4 files, 3 b )",
                          L"1 C:\\Data\\One: Deep X.txt (2 files, 3 b )",
                          L"2 C:\\Data\\One\\Deep: Y.txt (1 file, 4 b )", L"1 C:\\Data\\Two: (0 files, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, FullPathListRaisesTheSameEvents) {
  Tree().Dir(L"C:\\Data\\Sub").File(L"a.txt");
  const std::vector<std::wstring> streamed = List(kDeep);
  EXPECT_EQ(List(kFull), streamed);
}

TEST_F(StreamingWalkTest, NoSubdirectoriesNeverDescends) {
  Tree().Dir(L"C:\\Data\\Sub").File(L"a.txt");
  for (const std::int32_t subLevel : {0, 5}) {
    Format.SubLevel = subLevel;
    EXPECT_THAT(List(kFlat), ElementsAre(L"begin", L"0 C:\\Data: Sub (1 file, 0 b )", L"end"));
  }
}

TEST_F(StreamingWalkTest, ADirectoryAmongTheEntriesHasItsOwnSizeText) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").File(L"n.bin", 12'345).File(L"o.bin", 9'999);
  Writer.Details = true;
  EXPECT_THAT(List(kFlat), ElementsAre(L"begin",
                                       L"0 C:\\Data: Sub||<DIR>   |2001/02/03 04:05|d     "
                                       L"N.bin||12 kb|2001/02/03 04:05| a    "
                                       L"O.bin||9,999 b |2001/02/03 04:05| a    (3 files, 21 kb)",
                                       L"end"));
}

TEST_F(StreamingWalkTest, AnAttributeTestThatDoesNotCareListsSubdirectoriesAmongTheFilesOfTheirParent) {
  Tree().Dir(L"C:\\Data").File(L"b.txt", 7).Folder(L"Sub");
  Tree().Dir(L"C:\\Data\\Sub").File(L"c.txt", 3);
  Filter.AttrOn = true;
  Writer.Details = true;
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin",
                                       L"0 C:\\Data: Sub||<DIR>   |2001/02/03 04:05|d     "
                                       L"B.txt||7 b |2001/02/03 04:05| a    (2 files, 7 b )",
                                       L"1 C:\\Data\\Sub: C.txt||3 b |2001/02/03 04:05| a    (1 file, 3 b )", L"end"));
}

TEST_F(StreamingWalkTest, SubLevelLimitsTheDepth) {
  Tree().Dir(L"C:\\Data\\A\\B\\C").File(L"f");
  const auto directories = [&](std::int32_t subLevel) {
    Format.SubLevel = subLevel;
    return List(kDeep).size() - 2;  // without begin and end
  };
  EXPECT_EQ(directories(1), 2U);
  EXPECT_EQ(directories(2), 3U);
  EXPECT_EQ(directories(0), 4U);   // no limit
  EXPECT_EQ(directories(-1), 1U);  // the start directory alone
}

TEST_F(StreamingWalkTest, TheFilterDecidesAboutListedSubdirectoriesButNotAboutDescent) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").File(L"a.txt");
  Tree().Dir(L"C:\\Data\\Sub").File(L"b.txt");
  Filter.AttrOn = true;
  Filter.Attributes[kAttrDirectory] = AttributeChoice::MustNotHave;
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: A.txt (1 file, 0 b )",
                                       L"1 C:\\Data\\Sub: B.txt (1 file, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, PathsBelowTheStartKeepTheSpellingOnDisk) {
  Tree().Dir(L"C:\\DATA\\SUB").File(L"A.TXT");
  EXPECT_THAT(List(kDeep, L"c:\\data"), ElementsAre(L"begin", L"0 C:\\Data: Sub (1 file, 0 b )",
                                                    L"1 C:\\Data\\SUB: A.txt (1 file, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, ADriveRootKeepsItsOneBackslash) {
  Tree().Dir(L"D:\\Sub");
  EXPECT_THAT(List(kDeep, L"d:\\"),
              ElementsAre(L"begin", L"0 D:\\: Sub (1 file, 0 b )", L"1 D:\\Sub: (0 files, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, AnUnreadableDirectoryIsListedByItsParentAndSkippedSilently) {
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable().Folder(L"Open");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: Locked Open (2 files, 0 b )",
                                       L"1 C:\\Data\\Open: (0 files, 0 b )", L"end"));
  EXPECT_EQ(Run.Unread.size(), 1U);
  EXPECT_THAT(Watcher.Shares, ElementsAre(50));  // nothing is reported for the locked one
}

TEST_F(StreamingWalkTest, AReadableTreeIsNotCalledUnreadable) {
  Tree().Dir(L"C:\\Data\\Sub").File(L"a.txt");
  List(kDeep);
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(StreamingWalkTest, AnUnreadableStartDirectoryListsNothing) {
  Tree().Dir(L"C:\\Data").Unreadable();
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"end"));
  EXPECT_EQ(Run.Unread.size(), 1U);
  EXPECT_EQ(Run.Totals.TotalDirs, 0);
}

TEST_F(StreamingWalkTest, ADirectoryThatVanishesBeforeItIsEnteredIsSkipped) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B");
  Watcher.OnDirectory = [](std::wstring_view path) {
    if (path == L"C:\\Data\\A") {
      fakes::Tree().Remove(L"C:\\Data\\B");
    }
  };
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: A B (2 files, 0 b )", L"1 C:\\Data\\A: (0 files, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, AnEnumerationThatBreaksOffListsWhatItGave) {
  Tree().Dir(L"C:\\Data").FailsAfter(1).File(L"a.txt").File(L"b.txt");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: A.txt (1 file, 0 b )", L"end"));
  EXPECT_EQ(Run.Unread.size(), 1U);
}

TEST_F(StreamingWalkTest, ALinkToADirectoryItIsInIsListedButNotEntered) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub");
  Tree().Dir(L"C:\\Data\\Sub").Link(L"Up", L"C:\\Data").File(L"a.txt");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: Sub (1 file, 0 b )",
                                       L"1 C:\\Data\\Sub: Up A.txt (2 files, 0 b )", L"end"));
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(StreamingWalkTest, ALinkToADirectoryAboveTheStartIsNotEntered) {
  Tree().Dir(L"C:\\Top\\Data").Link(L"Up", L"C:\\Top").Link(L"Root", L"C:\\");
  EXPECT_THAT(List(kDeep, L"C:\\Top\\Data"),
              ElementsAre(L"begin", L"0 C:\\Top\\Data: Root Up (2 files, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, OtherLinksAreEntered) {
  Tree().Dir(L"C:\\Other").File(L"a.txt", 7);
  Tree().Dir(L"C:\\Data").Link(L"Away", L"C:\\Other").Link(L"Same", L"C:\\Other");
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: Away Same (2 files, 0 b )", L"1 C:\\Data\\Away: A.txt (1 file, 7 b )",
                          L"1 C:\\Data\\Same: A.txt (1 file, 7 b )", L"end"));
}

TEST_F(StreamingWalkTest, ALinkToADirectoryThatCannotBeReadIsTriedLikeTheDirectoryItself) {
  Tree().Dir(L"C:\\Locked").Unreadable();
  Tree().Dir(L"C:\\Data").Link(L"Away", L"C:\\Locked");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: Away (1 file, 0 b )", L"end"));
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\Away"));
  EXPECT_TRUE(Run.Unread.empty()) << "nobody may enter it: that is no gap in the listing";
}

TEST_F(StreamingWalkTest, ALinkToADirectoryThatIsGoneIsUnread) {
  Tree().Dir(L"C:\\Data").Link(L"Away", L"C:\\Gone");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: Away (1 file, 0 b )", L"end"));
  ASSERT_EQ(Run.Unread.size(), 1U);
  EXPECT_EQ(Run.Unread[0].Path, L"C:\\Data\\Away");
  EXPECT_EQ(Run.Unread[0].Reason.Code, 3U);
}

TEST_F(StreamingWalkTest, LinksAreListedAndNotEnteredWhenTheyAreNotFollowed) {
  Tree().Dir(L"C:\\Away").File(L"A.txt", 7);
  Tree().Dir(L"C:\\Data").Link(L"Away", L"C:\\Away");
  Tree().Dir(L"C:\\Data").Folder(L"Cloud").AddAttributes(platform::kLink).Tag(0x9000001A);
  Tree().Dir(L"C:\\Data\\Cloud").File(L"B.txt", 1);
  General.FollowLinks = false;
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: Away Cloud (2 files, 0 b )",
                                       L"1 C:\\Data\\Cloud: B.txt (1 file, 1 b )", L"end"));
}

TEST_F(StreamingWalkTest, DirectoriesThatAPatternLeavesOutAreNotThere) {
  Tree().Dir(L"C:\\Data").Folder(L"Node_Modules").File(L"node_modules.txt", 1);
  Tree().Dir(L"C:\\Data\\Node_Modules").File(L"A.txt", 7);
  Filter.FilterName = L"*.*, -node_modules\\";
  for (const bool on : {true, false}) {
    Filter.NameOn = on;
    const auto listed = List(kDeep);
    EXPECT_EQ(listed.size(), on ? 3U : 4U) << "the start, the end, and what is left";
    EXPECT_EQ(listed.at(1), on ? L"0 C:\\Data: Node_modules.txt (1 file, 1 b )"
                               : L"0 C:\\Data: Node_Modules Node_modules.txt (2 files, 1 b )");
  }
}

TEST_F(StreamingWalkTest, NaturalOrderHoldsForEntriesAndForDirectories) {
  for (const wchar_t* name : {L"v10", L"v9"}) {
    Tree().Dir(L"C:\\Data").Folder(name);
    Tree().Dir(std::wstring(L"C:\\Data\\") + name).File(L"f2", 0).File(L"f10", 0);
  }
  General.NaturalOrder = true;
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: V9 V10 (2 files, 0 b )", L"1 C:\\Data\\v9: F2 F10 (2 files, 0 b )",
                          L"1 C:\\Data\\v10: F2 F10 (2 files, 0 b )", L"end"));
  General.NaturalOrder = false;
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: V10 V9 (2 files, 0 b )", L"1 C:\\Data\\v10: F10 F2 (2 files, 0 b )",
                          L"1 C:\\Data\\v9: F10 F2 (2 files, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, TwoLinksThatLeadToEachOtherEnd) {
  Tree().Dir(L"C:\\One").Link(L"Two", L"C:\\Two");
  Tree().Dir(L"C:\\Two").Link(L"One", L"C:\\One");
  EXPECT_THAT(List(kDeep, L"C:\\One"),
              ElementsAre(L"begin", L"0 C:\\One: Two (1 file, 0 b )", L"1 C:\\One\\Two: One (1 file, 0 b )", L"end"));
}

TEST_F(StreamingWalkTest, DepthIsNotLimitedByTheStack) {
  constexpr std::size_t kDepth = 20'000;
  fakes::FakeDir directory = Tree().Dir(L"C:\\Data");
  for (std::size_t i = 0; i < kDepth; ++i) {
    directory = directory.Dir(L"d");
  }
  directory.File(L"bottom.txt", 5);
  Watcher.OnDirectory = [&](std::wstring_view) { Watcher.Shown.clear(); };
  Writer.Silent = true;
  List(kDeep);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 5);
  EXPECT_EQ(Run.Totals.TotalFiles, static_cast<std::int32_t>(kDepth) + 1);
}

TEST_F(StreamingWalkTest, CancelIsSeenAfterALinkThatLeadsBack) {
  Tree().Dir(L"C:\\Data").Link(L"Back", L"C:\\Data").Folder(L"Z");
  Watcher.CancelIn(L"C:\\Data");
  List(kDeep);
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data"));
}

/// Where the name of each directory's first entry lies.
class PlacesOfNames final : public RecordingWriter {
 public:
  std::vector<const wchar_t*> Places;
  void ListDirectory(const DirectoryListing& directory) override { Places.push_back(directory.Records[0].Name.data()); }
};

TEST_F(StreamingWalkTest, TheNamesOfADirectoryTakeThePlaceOfThoseBeforeIt) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B");
  Tree().Dir(L"C:\\Data\\A").File(L"a");
  Tree().Dir(L"C:\\Data\\B").File(L"b");
  Format.ListingStyle = kDeep;
  ASSERT_TRUE(SetStart(L"C:\\Data"));
  PlacesOfNames writer;
  RunListing(Run, writer, Rows);
  ASSERT_EQ(writer.Places.size(), 3U);
  EXPECT_EQ(writer.Places[1], writer.Places[0]);
  EXPECT_EQ(writer.Places[2], writer.Places[0]);
}

TEST_F(StreamingWalkTest, TotalsCountEntriesAndDirectoriesThatListMoreThanSubdirectories) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").File(L"a.txt", 1'000);
  Tree().Dir(L"C:\\Data\\Sub").Folder(L"Empty").File(L"b.txt", 500);
  Tree().Dir(L"C:\\Data\\Sub\\Empty").Folder(L"OnlyFolders");
  List(kDeep);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 1'500);
  EXPECT_EQ(Run.Totals.TotalFiles, 5);  // two files and three subdirectories among the entries
  EXPECT_EQ(Run.Totals.TotalDirs, 2);   // those that hold a file
}

TEST_F(StreamingWalkTest, ADirectoryWhoseSubdirectoriesAreFilteredOutMayNotCount) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B").File(L"x.txt").File(L"y.txt");
  Filter.AttrOn = true;
  Filter.Attributes[kAttrDirectory] = AttributeChoice::MustNotHave;
  List(kFlat);
  EXPECT_EQ(Run.Totals.TotalFiles, 2);
  EXPECT_EQ(Run.Totals.TotalDirs, 0);  // two entries are not more than two subdirectories
}

TEST_F(StreamingWalkTest, SizesBeyondFourGigabytesStayExact) {
  Tree().Dir(L"C:\\Data").File(L"a", 0x1'8000'0000ULL).File(L"b", 0xFFFF'FFFFULL);
  EXPECT_THAT(List(kFlat), ElementsAre(L"begin", L"0 C:\\Data: A B (2 files, 9 Gb)", L"end"));
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 0x1'8000'0000LL + 0xFFFF'FFFFLL);
}

TEST_F(StreamingWalkTest, SharesDivideAmongSubdirectories) {
  Tree().Dir(L"C:\\Four").Folder(L"A").Folder(L"B").Folder(L"C").Folder(L"D");
  List(kDeep, L"C:\\Four");
  EXPECT_THAT(Watcher.Shares, ElementsAre(25, 25, 25, 25));
  Watcher.Shares.clear();
  Tree().Dir(L"C:\\Three").Folder(L"A").Folder(L"B").Folder(L"C");
  List(kDeep, L"C:\\Three");
  EXPECT_THAT(Watcher.Shares, ElementsAre(33, 33, 33));
}

TEST_F(StreamingWalkTest, ADirectoryWithoutSubdirectoriesReportsItsWholeShareAtOnce) {
  Tree().Dir(L"C:\\Data").File(L"a");
  List(kDeep);
  EXPECT_THAT(Watcher.Shares, ElementsAre(100));
}

TEST_F(StreamingWalkTest, ADirectoryWithSubdirectoriesReportsNothingItself) {
  Tree().Dir(L"C:\\Data\\Sub");
  List(kFlat);
  EXPECT_TRUE(Watcher.Shares.empty());
}

TEST_F(StreamingWalkTest, HalvesOfSharesGoToTheEvenNumber) {
  EXPECT_EQ(DivideShare(25, 2), 12);
  EXPECT_EQ(DivideShare(35, 2), 18);
  EXPECT_EQ(DivideShare(100, 3), 33);
  EXPECT_EQ(DivideShare(50, 3), 17);
  EXPECT_EQ(DivideShare(1, 3), 0);
}

TEST_F(StreamingWalkTest, EachDirectoryIsShownBeforeItIsRead) {
  Tree().Dir(L"C:\\Data\\Locked").Unreadable();
  List(kDeep);
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\Locked"));
}

TEST_F(StreamingWalkTest, EventsGetThroughForEveryEntryEvenIfItIsNotKept) {
  Tree().Dir(L"C:\\Data").File(L"a").File(L"b").File(L"c");
  Filter.FilterName = L"a";
  EXPECT_THAT(PumpsBetweenEvents(kDeep), ElementsAre(1, 4, 0));  // before the run; the directory and its three entries
}

TEST_F(StreamingWalkTest, ACancelledRunListsTheDirectoryThatItIsReadingToItsEnd) {
  Tree().Dir(L"C:\\Data").File(L"a").File(L"b").File(L"c");
  Watcher.OnPump = [&] { Watcher.CancelNow = true; };
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: A B C (3 files, 0 b )", L"abort"));
  EXPECT_EQ(Run.Totals.TotalFiles, 3);
}

TEST_F(StreamingWalkTest, CancelIsSeenAfterASubdirectoryNotBefore) {
  Tree().Dir(L"C:\\Data\\A\\Deep");
  Tree().Dir(L"C:\\Data\\B");
  Watcher.CancelIn(L"C:\\Data");
  // The first subdirectory is still scanned, all the way down; then every level returns.
  EXPECT_THAT(List(kDeep),
              ElementsAre(L"begin", L"0 C:\\Data: A B (2 files, 0 b )", L"1 C:\\Data\\A: Deep (1 file, 0 b )",
                          L"2 C:\\Data\\A\\Deep: (0 files, 0 b )", L"abort"));
}

TEST_F(StreamingWalkTest, CancelSkipsTheTotalsOfDirectoriesThatTheRunIsIn) {
  Tree().Dir(L"C:\\Data").Folder(L"A").File(L"top.txt", 100);
  Tree().Dir(L"C:\\Data\\A").File(L"a.txt", 7);
  Watcher.CancelIn(L"C:\\Data\\A");
  List(kDeep);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 7);
  EXPECT_EQ(Run.Totals.TotalFiles, 1);
  EXPECT_TRUE(Run.Cancelled);
}

TEST_F(StreamingWalkTest, CancelIsSeenAfterAnUnreadableSubdirectoryToo) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Unreadable().Folder(L"B");
  Watcher.CancelIn(L"C:\\Data\\A");
  EXPECT_THAT(List(kDeep), ElementsAre(L"begin", L"0 C:\\Data: A B (2 files, 0 b )", L"abort"));
}

}  // namespace
}  // namespace folivant
