// The tree style of DirectoryWalk.
#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;

using TreeWalkTest = ListingTest;

TEST_F(TreeWalkTest, ContentsFollowTheirDirectory) {
  Tree().Dir(L"C:\\Data").File(L"z.txt").Folder(L"Two").Folder(L"One").File(L"a.txt");
  Tree().Dir(L"C:\\Data\\One").File(L"x.txt").Folder(L"Deep");
  Tree().Dir(L"C:\\Data\\One\\Deep").File(L"y.txt");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 One", L"1 Deep", L"2 Y.txt", L"1 X.txt",
                                       L"0 Two", L"0 A.txt", L"0 Z.txt", L"end"));
}

TEST_F(TreeWalkTest, FilesFirstPutsFilesBeforeDirectories) {
  Tree().Dir(L"C:\\Data").Folder(L"A").File(L"z.txt");
  Tree().Dir(L"C:\\Data\\A").File(L"y.txt");
  General.FilesFirst = true;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Z.txt", L"0 A", L"1 Y.txt", L"end"));
}

TEST_F(TreeWalkTest, FilesFirstMeansNothingInOtherStyles) {
  Tree().Dir(L"C:\\Data").File(L"a.txt").Folder(L"Sub");
  General.FilesFirst = true;
  EXPECT_THAT(List(kFlat), ElementsAre(L"begin", L"0 C:\\Data: Sub A.txt (2 files, 0 b )", L"end"));
}

TEST_F(TreeWalkTest, WithoutAnOrderTheEnumerationStaysEvenWithFilesFirst) {
  Tree().Dir(L"C:\\Data").File(L"b").Folder(L"C").File(L"a");
  General.FilesFirst = true;
  Filter.OrderBy = OrderBy::None;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 B", L"0 C", L"0 A", L"end"));
}

TEST_F(TreeWalkTest, EveryDirectoryIsKeptAndFilesAreFiltered) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").AddAttributes(platform::kHidden).File(L"a.txt").File(L"a.bak");
  Tree().Dir(L"C:\\Data\\Sub").File(L"b.bak");
  Filter.FilterName = L"*.txt";
  Filter.AttrOn = true;
  Filter.Attributes[kAttrHidden] = AttributeChoice::MustNotHave;
  Filter.Attributes[kAttrDirectory] = AttributeChoice::MustNotHave;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"0 A.txt", L"end"));
}

TEST_F(TreeWalkTest, AnUnreadableSubdirectoryIsNotShown) {
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable().Folder(L"Open").File(L"a");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Open", L"0 A", L"end"));
  EXPECT_EQ(Run.Unread.size(), 1U);
}

TEST_F(TreeWalkTest, CancelIsSeenAfterADirectoryThatCannotBeRead) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Unreadable().Folder(L"B");
  Watcher.CancelIn(L"C:\\Data\\A");
  List(kTree);
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\A"));
}

TEST_F(TreeWalkTest, BelowTheDepthLimitNobodyKnowsThatADirectoryIsUnreadable) {
  Tree().Dir(L"C:\\Data\\Sub").Folder(L"Locked").Unreadable().Folder(L"Open");
  Tree().Dir(L"C:\\Data\\Sub\\Open").File(L"a");
  Format.SubLevel = 1;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Locked", L"1 Open", L"end"));
  EXPECT_TRUE(Run.Unread.empty());
}

TEST_F(TreeWalkTest, ANegativeSubLevelListsTheStartDirectoryAlone) {
  Tree().Dir(L"C:\\Data\\Sub\\Deep");
  Format.SubLevel = -1;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"end"));
}

TEST_F(TreeWalkTest, ShowsRecasedNamesAndOpensThoseOnDisk) {
  Tree().Dir(L"C:\\Data\\SUB\\low").File(L"A.TXT");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Low", L"2 A.txt", L"end"));
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\Sub", L"C:\\Data\\Sub\\Low"));
}

TEST_F(TreeWalkTest, TwoDirectoriesThatDifferInCaseOnlyAreBothEntered) {
  Tree().Dir(L"C:\\Data").Folder(L"SUB").Folder(L"sub");
  Tree().Dir(L"C:\\Data").Dir(L"SUB").File(L"capital");
  Tree().Dir(L"C:\\Data").Dir(L"sub").File(L"small");
  EXPECT_THAT(List(kTree),
              ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Capital", L"0 Sub", L"1 Small", L"end"));
}

TEST_F(TreeWalkTest, TotalsCountFilesAndEveryDirectory) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").Folder(L"Locked").Unreadable().File(L"a", 10);
  Tree().Dir(L"C:\\Data\\Sub").File(L"b", 5);
  List(kTree);
  EXPECT_EQ(Run.Totals.TotalSize.Whole(), 15);
  EXPECT_EQ(Run.Totals.TotalFiles, 2);
  EXPECT_EQ(Run.Totals.TotalDirs, 2);
}

TEST_F(TreeWalkTest, ALinkToAnAncestorIsShownButNotEntered) {
  Tree().Dir(L"C:\\Data\\Sub").Link(L"Up", L"C:\\Data").File(L"a");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Up", L"1 A", L"end"));
}

TEST_F(TreeWalkTest, SharesGoDownTheTree) {
  Tree().Dir(L"C:\\Data\\A\\A1");
  Tree().Dir(L"C:\\Data\\A\\A2");
  Tree().Dir(L"C:\\Data\\A\\A3");
  Tree().Dir(L"C:\\Data\\A\\A4");
  Tree().Dir(L"C:\\Data\\B");
  List(kTree);
  EXPECT_THAT(Watcher.Shares, ElementsAre(12, 12, 12, 12, 50));  // 50 / 4 is 12.5
}

TEST_F(TreeWalkTest, CancelStopsAfterTheNextEntryAndTheCollectedOnesAreStillWritten) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B").File(L"z");
  Tree().Dir(L"C:\\Data\\A").File(L"a1").File(L"a2");
  Watcher.CancelIn(L"C:\\Data\\A");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 A", L"1 A1", L"abort"));
}

TEST_F(TreeWalkTest, DepthIsNotLimitedByTheStack) {
  constexpr int kDepth = 20'000;
  fakes::FakeDir directory = Tree().Dir(L"C:\\Data");
  for (int i = 0; i < kDepth; ++i) {
    directory = directory.Dir(L"d");
  }
  Watcher.OnDirectory = [&](std::wstring_view) { Watcher.Shown.clear(); };
  EXPECT_EQ(List(kTree).size(), 3U + kDepth);
  EXPECT_EQ(Run.Totals.TotalDirs, kDepth + 1);
}

}  // namespace
}  // namespace folivant
