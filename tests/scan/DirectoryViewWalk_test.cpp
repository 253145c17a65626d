#include "scan/DirectoryViewWalk.h"

#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;

class DirectoryViewWalkTest : public ListingTest {
 protected:
  void SetUp() override {
    ListingTest::SetUp();
    Tree().Dir(L"C:\\Data").Folder(L"B").Folder(L"A").File(L"top.txt", 1).File(L"top.bak", 2);
    Tree().Dir(L"C:\\Data\\A").Folder(L"DEEP").File(L"a.txt", 10);
    Tree().Dir(L"C:\\Data\\A\\DEEP").File(L"d.txt", 100).File(L"e.txt", 1'000);
  }
};

TEST_F(DirectoryViewWalkTest, CountsEachDirectoryAndEverythingBelow) {
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"0 C:\\Data C:\\Data 2 3 5 1113", L"1 A C:\\Data\\A 1 10 3 1110",
                                       L"2 DEEP C:\\Data\\A\\DEEP 2 1100 2 1100", L"1 B C:\\Data\\B 0 0 0 0", L"end"));
}

TEST_F(DirectoryViewWalkTest, EveryPathIsThatOfItsOwnParent) {
  Tree().Dir(L"C:\\Top\\A rather long one\\In");
  Tree().Dir(L"C:\\Top\\Be\\In\\Deep");
  Tree().Dir(L"C:\\Top\\Ce\\In");
  EXPECT_THAT(
      List(kView, L"C:\\Top"),
      ElementsAre(L"begin", L"0 C:\\Top C:\\Top 0 0 0 0", L"1 A rather long one C:\\Top\\A rather long one 0 0 0 0",
                  L"2 In C:\\Top\\A rather long one\\In 0 0 0 0", L"1 Be C:\\Top\\Be 0 0 0 0",
                  L"2 In C:\\Top\\Be\\In 0 0 0 0", L"3 Deep C:\\Top\\Be\\In\\Deep 0 0 0 0", L"1 Ce C:\\Top\\Ce 0 0 0 0",
                  L"2 In C:\\Top\\Ce\\In 0 0 0 0", L"end"));
}

TEST_F(DirectoryViewWalkTest, TheDepthLimitHidesNodesButNotTheirTotals) {
  Format.SubLevel = 1;
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"0 C:\\Data C:\\Data 2 3 5 1113", L"1 A C:\\Data\\A 1 10 3 1110",
                                       L"1 B C:\\Data\\B 0 0 0 0", L"end"));
}

TEST_F(DirectoryViewWalkTest, ANegativeSubLevelShowsNoNode) {
  Format.SubLevel = -1;
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"end"));
}

TEST_F(DirectoryViewWalkTest, OnlyFilesThatPassTheFilterCount) {
  Filter.FilterName = L"*.txt";
  Format.SubLevel = 1;
  EXPECT_THAT(List(kView), testing::Contains(L"0 C:\\Data C:\\Data 1 1 4 1111"));
}

TEST_F(DirectoryViewWalkTest, WithDirectoriesRequiredNoFileCounts) {
  Filter.AttrOn = true;
  Filter.Attributes[kAttrDirectory] = AttributeChoice::MustHave;
  EXPECT_THAT(List(kView), testing::Contains(L"0 C:\\Data C:\\Data 0 0 0 0"));
}

TEST_F(DirectoryViewWalkTest, DirectionTurnsTheSubdirectoriesRound) {
  Filter.OrderAZ = false;
  EXPECT_THAT(List(kView),
              ElementsAre(L"begin", L"0 C:\\Data C:\\Data 2 3 5 1113", L"1 B C:\\Data\\B 0 0 0 0",
                          L"1 A C:\\Data\\A 1 10 3 1110", L"2 DEEP C:\\Data\\A\\DEEP 2 1100 2 1100", L"end"));
}

TEST_F(DirectoryViewWalkTest, AnUnreadableDirectoryKeepsZeroCountsAndIsNotCounted) {
  Tree().Dir(L"C:\\Data\\A").Unreadable();
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"0 C:\\Data C:\\Data 2 3 2 3", L"1 A C:\\Data\\A 0 0 0 0",
                                       L"1 B C:\\Data\\B 0 0 0 0", L"end"));
  EXPECT_EQ(Run.Totals.TotalDirs, 2);
  EXPECT_EQ(Run.Unread.size(), 1U);
}

TEST_F(DirectoryViewWalkTest, AnEnumerationThatBreaksOffCountsWhatItGave) {
  Tree().Dir(L"C:\\Data\\A\\DEEP").FailsAfter(1);
  EXPECT_THAT(List(kView), testing::Contains(L"2 DEEP C:\\Data\\A\\DEEP 1 100 1 100"));
  EXPECT_EQ(Run.Unread.size(), 1U);
}

TEST_F(DirectoryViewWalkTest, AReadableTreeIsNotCalledUnreadable) {
  List(kView);
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(DirectoryViewWalkTest, TotalsOfTheRunAreThoseOfTheStartDirectory) {
  Format.SubLevel = 1;
  List(kView);
  EXPECT_EQ(Run.Totals.TotalFiles, 5);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 1'113);
  EXPECT_EQ(Run.Totals.TotalDirs, 4);
}

TEST_F(DirectoryViewWalkTest, ALinkToAnAncestorKeepsZeroCounts) {
  Tree().Dir(L"C:\\Data\\B").Link(L"Up", L"C:\\Data");
  EXPECT_THAT(List(kView), testing::Contains(L"2 Up C:\\Data\\B\\Up 0 0 0 0"));
  EXPECT_EQ(Run.Totals.TotalDirs, 4);
}

TEST_F(DirectoryViewWalkTest, OtherLinksAreEntered) {
  Tree().Dir(L"C:\\Other").File(L"a.txt", 7);
  Tree().Dir(L"C:\\Data\\B").Link(L"Away", L"C:\\Other").Link(L"Same", L"C:\\Other");
  EXPECT_THAT(List(kView), testing::IsSupersetOf({L"1 B C:\\Data\\B 0 0 2 14", L"2 Away C:\\Data\\B\\Away 1 7 1 7",
                                                  L"2 Same C:\\Data\\B\\Same 1 7 1 7"}));
}

TEST_F(DirectoryViewWalkTest, SharesGoDownTheTree) {
  List(kView);
  EXPECT_THAT(Watcher.Shares, ElementsAre(50, 50));  // DEEP and B
}

TEST_F(DirectoryViewWalkTest, EventsGetThroughForEveryEntryEvenIfItDoesNotCount) {
  Filter.FilterName = L"a.txt";
  std::vector<int> pumped;  // until each directory is shown
  Watcher.OnDirectory = [&](std::wstring_view) { pumped.push_back(Watcher.Pumped); };
  List(kView);
  // Before the run; then each directory and its entries: four in Data, two in A, two in DEEP. B is the last.
  EXPECT_THAT(pumped, ElementsAre(1, 1 + 5, 6 + 3, 9 + 3));
}

TEST_F(DirectoryViewWalkTest, ARunCancelledWhileScanningShowsNoNode) {
  Watcher.CancelIn(L"C:\\Data\\A\\DEEP");
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"abort"));
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\A", L"C:\\Data\\A\\DEEP"));
}

TEST_F(DirectoryViewWalkTest, CancelIsSeenAfterAnUnreadableSubdirectoryToo) {
  Tree().Dir(L"C:\\Data\\A").Unreadable();
  Watcher.CancelIn(L"C:\\Data\\A");
  EXPECT_THAT(List(kView), ElementsAre(L"begin", L"abort"));
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\A"));
}

TEST_F(DirectoryViewWalkTest, ARunCancelledWhileShowingStopsThere) {
  Writer.OnEvent = [&] { Watcher.CancelNow = Writer.Events.size() == 3; };
  EXPECT_THAT(List(kView),
              ElementsAre(L"begin", L"0 C:\\Data C:\\Data 2 3 5 1113", L"1 A C:\\Data\\A 1 10 3 1110", L"abort"));
}

TEST_F(DirectoryViewWalkTest, DepthIsNotLimitedByTheStack) {
  constexpr std::int32_t kDepth = 20'000;
  fakes::FakeDir directory = Tree().Dir(L"C:\\Data\\B");
  for (int i = 0; i < kDepth; ++i) {
    directory = directory.Dir(L"d");
  }
  directory.File(L"bottom.txt", 10'000);
  Watcher.OnDirectory = [&](std::wstring_view) { Watcher.Shown.clear(); };
  Format.SubLevel = 1;
  EXPECT_THAT(List(kView), testing::Contains(L"1 B C:\\Data\\B 0 0 1 10000"));
}

}  // namespace
}  // namespace folivant
