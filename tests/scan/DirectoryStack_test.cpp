#include "scan/DirectoryStack.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "scan/ListingTest.h"

namespace folivant {
namespace {

std::vector<std::wstring> TextsOf(const NameStack& names) {
  std::vector<std::wstring> texts;
  for (std::size_t i = 0; i < names.Size(); ++i) {
    texts.emplace_back(names.TextOf(i));
  }
  return texts;
}

TEST(NameStackTest, SortsTheNamesOfOneDirectoryAndLeavesThoseBelowAlone) {
  NameStack names;
  for (const wchar_t* name : {L"z", L"y", L"b", L"C", L"a"}) {
    names.Push(name, std::wstring_view(name) == L"C");
  }
  names.SortFrom(2, true);
  EXPECT_THAT(TextsOf(names), testing::ElementsAre(L"z", L"y", L"a", L"b", L"C"));
  EXPECT_TRUE(names[4].IsLink);
  EXPECT_FALSE(names[3].IsLink);
  names.SortFrom(3, false);
  EXPECT_THAT(TextsOf(names), testing::ElementsAre(L"z", L"y", L"a", L"C", L"b"));
}

TEST(NameStackTest, CuttingGivesTheRoomOfTheTextsBack) {
  NameStack names;
  for (const wchar_t* name : {L"below", L"bb", L"aaa", L"c"}) {
    names.Push(name, false);
  }
  names.SortFrom(1, true);
  names.CutTo(4);
  EXPECT_EQ(names.Size(), 4U) << "there is nothing to cut";
  names.CutTo(1);
  EXPECT_THAT(TextsOf(names), testing::ElementsAre(L"below"));
  names.Push(L"new", false);
  EXPECT_EQ(names[1].Start, 5U) << "behind \"below\"";
  EXPECT_EQ(names.TextOf(1), L"new");
}

using IdentitiesTest = ListingTest;

TEST_F(IdentitiesTest, AreNotAskedForWithoutALink) {
  Tree().Dir(L"C:\\Data\\Sub\\Deep").File(L"a");
  for (const ListingStyle style : {kDeep, kTree, kView}) {
    List(style);
  }
  EXPECT_EQ(fakes::Fake().IdentitiesAsked, 0);
}

TEST_F(IdentitiesTest, AreAskedForOnceOfEachDirectory) {
  Tree().Dir(L"C:\\Other");
  Tree().Dir(L"C:\\Top\\Data\\Sub").Link(L"One", L"C:\\Other").Link(L"Two", L"C:\\Other");
  List(kDeep, L"C:\\Top\\Data");
  // Each of the two links, the start directory and its subdirectory, and "C:\Top" and "C:\" above.
  EXPECT_EQ(fakes::Fake().IdentitiesAsked, 2 + 2 + 2);
}

}  // namespace
}  // namespace folivant
