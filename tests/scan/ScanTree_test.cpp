#include "scan/ScanTree.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(ScanTreeTest, ReleasingTheListsForgetsTheirTexts) {
  ScanTree tree;
  const wchar_t* const text = tree.Texts.Add(L"a").data();
  tree.ReleaseLists();
  EXPECT_NE(tree.Texts.Add(L"b").data(), text + 1) << "the texts of one run pile up behind those of another";
}

TEST(ScanTreeTest, ANewRunStartsFromZeroAndKeepsItsStart) {
  ScanTree tree;
  tree.StartPath = L"C:\\Data";
  tree.FindWindowTitle = L"Find: all";
  tree.Totals = {Currency::FromWhole(1), 2, 3};
  tree.Cancelled = tree.Unreadable = true;
  tree.ResetTotals();
  EXPECT_EQ(tree.Totals.TotalSize, Currency());
  EXPECT_EQ(tree.Totals.TotalFiles, 0);
  EXPECT_EQ(tree.Totals.TotalDirs, 0);
  EXPECT_FALSE(tree.Cancelled || tree.Unreadable);
  EXPECT_EQ(tree.StartPath, L"C:\\Data");
  EXPECT_EQ(tree.FindWindowTitle, L"Find: all");
}

}  // namespace
}  // namespace folivant
