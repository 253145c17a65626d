// The tree style of DirectoryWalk.
#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;

using TreeStyleTest = ListingTest;

TEST_F(TreeStyleTest, ContentsFollowTheirDirectory) {
  Tree().Dir(L"C:\\Data").File(L"z.txt").Folder(L"Two").Folder(L"One").File(L"a.txt");
  Tree().Dir(L"C:\\Data\\One").File(L"x.txt").Folder(L"Deep");
  Tree().Dir(L"C:\\Data\\One\\Deep").File(L"y.txt");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 One", L"1 Deep", L"2 Y.txt", L"1 X.txt",
                                       L"0 Two", L"0 A.txt", L"0 Z.txt", L"end"));
}

TEST_F(TreeStyleTest, FilesFirstPutsFilesBeforeDirectories) {
  Tree().Dir(L"C:\\Data").Folder(L"A").File(L"z.txt");
  Tree().Dir(L"C:\\Data\\A").File(L"y.txt");
  mdlVars::General.FilesFirst = true;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Z.txt", L"0 A", L"1 Y.txt", L"end"));
}

TEST_F(TreeStyleTest, FilesFirstMeansNothingInOtherStyles) {
  Tree().Dir(L"C:\\Data").File(L"a.txt").Folder(L"Sub");
  mdlVars::General.FilesFirst = true;
  EXPECT_THAT(List(kFlat), ElementsAre(L"begin", L"0 C:\\Data: Sub A.txt (2 files, 0 b )", L"end"));
}

TEST_F(TreeStyleTest, WithoutAnOrderTheEnumerationStaysEvenWithFilesFirst) {
  Tree().Dir(L"C:\\Data").File(L"b").Folder(L"C").File(L"a");
  mdlVars::General.FilesFirst = true;
  mdlVars::Filter.OrderBy = OrderBy::None;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 B", L"0 C", L"0 A", L"end"));
}

TEST_F(TreeStyleTest, EveryDirectoryIsKeptAndFilesAreFiltered) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").AddAttributes(platform::kHidden).File(L"a.txt").File(L"a.bak");
  Tree().Dir(L"C:\\Data\\Sub").File(L"b.bak");
  mdlVars::Filter.FilterName = L"*.txt";
  mdlVars::Filter.AttrOn = true;
  mdlVars::Filter.Attributes[kAttrHidden] = AttributeChoice::MustNotHave;
  mdlVars::Filter.Attributes[kAttrDirectory] = AttributeChoice::MustNotHave;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"0 A.txt", L"end"));
}

TEST_F(TreeStyleTest, AnUnreadableSubdirectoryIsNotShown) {
  Tree().Dir(L"C:\\Data").Folder(L"Locked").Unreadable().Folder(L"Open").File(L"a");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Open", L"0 A", L"end"));
  EXPECT_TRUE(mdlVars::Tree.Unreadable);
}

TEST_F(TreeStyleTest, BelowTheDepthLimitNobodyKnowsThatADirectoryIsUnreadable) {
  Tree().Dir(L"C:\\Data\\Sub").Folder(L"Locked").Unreadable().Folder(L"Open");
  Tree().Dir(L"C:\\Data\\Sub\\Open").File(L"a");
  mdlVars::Format.SubLevel = 1;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Locked", L"1 Open", L"end"));
  EXPECT_FALSE(mdlVars::Tree.Unreadable);
}

TEST_F(TreeStyleTest, ANegativeSubLevelListsTheStartDirectoryAlone) {
  Tree().Dir(L"C:\\Data\\Sub\\Deep");
  mdlVars::Format.SubLevel = -1;
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"end"));
}

TEST_F(TreeStyleTest, ShowsRecasedNamesAndOpensThoseOnDisk) {
  Tree().Dir(L"C:\\Data\\SUB\\low").File(L"A.TXT");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Low", L"2 A.txt", L"end"));
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\Sub", L"C:\\Data\\Sub\\Low"));
}

TEST_F(TreeStyleTest, TwoDirectoriesThatDifferInCaseOnlyAreBothEntered) {
  Tree().Dir(L"C:\\Data").Folder(L"SUB").Folder(L"sub");
  Tree().Dir(L"C:\\Data").Dir(L"SUB").File(L"capital");
  Tree().Dir(L"C:\\Data").Dir(L"sub").File(L"small");
  EXPECT_THAT(List(kTree),
              ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Capital", L"0 Sub", L"1 Small", L"end"));
}

TEST_F(TreeStyleTest, TotalsCountFilesAndEveryDirectory) {
  Tree().Dir(L"C:\\Data").Folder(L"Sub").Folder(L"Locked").Unreadable().File(L"a", 10);
  Tree().Dir(L"C:\\Data\\Sub").File(L"b", 5);
  List(kTree);
  EXPECT_EQ(mdlVars::Tree.Totals.TotalSize.Whole(), 15);
  EXPECT_EQ(mdlVars::Tree.Totals.TotalFiles, 2);
  EXPECT_EQ(mdlVars::Tree.Totals.TotalDirs, 2);
}

TEST_F(TreeStyleTest, ALinkToAnAncestorIsShownButNotEntered) {
  Tree().Dir(L"C:\\Data\\Sub").Link(L"Up", L"C:\\Data").File(L"a");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 Sub", L"1 Up", L"1 A", L"end"));
}

TEST_F(TreeStyleTest, SharesGoDownTheTree) {
  Tree().Dir(L"C:\\Data\\A\\A1");
  Tree().Dir(L"C:\\Data\\A\\A2");
  Tree().Dir(L"C:\\Data\\A\\A3");
  Tree().Dir(L"C:\\Data\\A\\A4");
  Tree().Dir(L"C:\\Data\\B");
  List(kTree);
  EXPECT_THAT(Watcher.Shares, ElementsAre(12, 12, 12, 12, 50));  // 50 / 4 is 12.5
}

TEST_F(TreeStyleTest, CancelStopsAfterTheNextEntryAndTheCollectedOnesAreStillWritten) {
  Tree().Dir(L"C:\\Data").Folder(L"A").Folder(L"B").File(L"z");
  Tree().Dir(L"C:\\Data\\A").File(L"a1").File(L"a2");
  Watcher.CancelIn(L"C:\\Data\\A");
  EXPECT_THAT(List(kTree), ElementsAre(L"begin", L"tree C:\\Data", L"0 A", L"1 A1", L"abort"));
}

TEST_F(TreeStyleTest, DepthIsNotLimitedByTheStack) {
  constexpr int kDepth = 20'000;
  fakes::FakeDir directory = Tree().Dir(L"C:\\Data");
  for (int i = 0; i < kDepth; ++i) {
    directory = directory.Dir(L"d");
  }
  Watcher.OnDirectory = [&](std::wstring_view) { Watcher.Shown.clear(); };
  EXPECT_EQ(List(kTree).size(), 3U + kDepth);
  EXPECT_EQ(mdlVars::Tree.Totals.TotalDirs, kDepth + 1);
}

TEST_F(TreeStyleTest, TheListsAreEmptyAfterTheRun) {
  Tree().Dir(L"C:\\Data\\Sub").File(L"a");
  List(kTree);
  EXPECT_TRUE(mdlVars::Tree.TreeList.empty());
  EXPECT_TRUE(mdlVars::Tree.TreeRecords.empty());
}

}  // namespace
}  // namespace folivant
