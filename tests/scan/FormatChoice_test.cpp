#include "scan/FormatChoice.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(StyleOf, NamesEachButton) {
  StyleButtons noSub, sub, subTree, tree, find;
  noSub.NoSub = sub.Sub = subTree.SubTree = tree.Tree = find.Find = true;
  EXPECT_EQ(StyleOf(noSub), ListingStyle::NoSubdirectories);
  EXPECT_EQ(StyleOf(sub), ListingStyle::IncludeSubdirectories);
  EXPECT_EQ(StyleOf(subTree), ListingStyle::TreeStyle);
  EXPECT_EQ(StyleOf(tree), ListingStyle::DirectoryView);
  EXPECT_EQ(StyleOf(find), ListingStyle::FindWindow);
  EXPECT_EQ(StyleOf({}), ListingStyle::FullPathList);
}

TEST(PreviewPictureOf, CountsFrom200AndHasNoneForThePathList) {
  EXPECT_EQ(PreviewPictureOf(ListingStyle::NoSubdirectories), 200);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::DirectoryView), 203);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::FindWindow), 205);
  EXPECT_EQ(PreviewPictureOf(ListingStyle::PathListFile), std::nullopt);
  EXPECT_EQ(PreviewPictureOf(static_cast<ListingStyle>(-1)), std::nullopt);
}

}  // namespace
}  // namespace folivant
