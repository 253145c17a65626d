#include "scan/SortOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "platform/Text.h"
#include "scan/ListingTest.h"

namespace folivant {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

std::vector<std::uint32_t> Sorted(const std::vector<std::wstring>& keys, bool ascending) {
  EntrySorter sorter;
  for (const std::wstring& key : keys) {
    sorter.Add(key);
  }
  std::vector<std::uint32_t> order;
  sorter.Sort(ascending, order);
  return order;
}

TEST(EntrySorterTest, EqualKeysKeepTheirOrderInBothDirections) {
  const std::vector<std::wstring> keys = {L"b", L"A", L"a", L"B", L"a"};
  EXPECT_THAT(Sorted(keys, true), ElementsAre(1, 2, 4, 0, 3));
  EXPECT_THAT(Sorted(keys, false), ElementsAre(0, 3, 1, 2, 4));
}

TEST(EntrySorterTest, AShorterKeyGoesBeforeALongerOneThatBeginsWithIt) {
  const std::vector<std::wstring> keys = {L"namename2", L"namename", L"name", L"namename10", L""};
  EXPECT_THAT(Sorted(keys, true), ElementsAre(4, 2, 1, 3, 0));
  EXPECT_THAT(Sorted(keys, false), ElementsAre(0, 3, 1, 2, 4));
}

// No name has such an end, but nothing else tells how a missing letter compares with the least one.
TEST(EntrySorterTest, AKeyGoesBeforeTheSameOneWithAZeroAtItsEnd) {
  const std::wstring zero(1, L'\0');
  EXPECT_THAT(Sorted({L"a" + zero + zero, L"a" + zero, L"a"}, true), ElementsAre(2, 1, 0));
  EXPECT_THAT(Sorted({L"a", L"a" + zero}, false), ElementsAre(1, 0));
}

TEST(EntrySorterTest, OneLetterAnywhereMakesTheDifference) {
  for (std::size_t length = 1; length <= 20; ++length) {
    std::wstring later(length, L'x');
    later.back() = L'c';  // as a number one more than "b"
    std::wstring earlier = later;
    earlier.back() = L'b';
    EXPECT_THAT(Sorted({later, earlier}, true), ElementsAre(1, 0)) << length;
    EXPECT_THAT(Sorted({earlier, later}, false), ElementsAre(1, 0)) << length;
  }
}

TEST(EntrySorterTest, NothingAndOneKeyAreSortedToo) {
  EXPECT_TRUE(Sorted({}, true).empty());
  EXPECT_THAT(Sorted({L"x"}, false), ElementsAre(0));
}

TEST(EntrySorterTest, IsMadeForReuse) {
  EntrySorter sorter;
  std::vector<std::uint32_t> order;
  sorter.Add(L"b");
  sorter.Add(L"a");
  sorter.Sort(true, order);
  sorter.Clear();
  sorter.Add(L"y");
  sorter.Add(L"z");
  sorter.Add(L"x");
  sorter.Sort(true, order);
  EXPECT_THAT(order, ElementsAre(2, 0, 1));
}

/// The sort that the order is defined by: neighbours are exchanged until none is out of order.
std::vector<std::uint32_t> BubbleSorted(const std::vector<std::wstring>& keys, bool ascending) {
  std::vector<std::uint32_t> index(keys.size());
  for (std::uint32_t i = 0; i < index.size(); ++i) {
    index[i] = i;
  }
  if (index.size() < 2) {
    return index;
  }
  for (std::size_t bound = index.size() - 2;;) {
    std::size_t last = 0;
    for (std::size_t i = 0; i <= bound; ++i) {
      if (platform::CompareText(keys[index[i]], keys[index[i + 1]]) == (ascending ? 1 : -1)) {
        std::swap(index[i], index[i + 1]);
        last = i;
      }
    }
    if (bound == 0) {
      return index;
    }
    bound = last;
  }
}

TEST(EntrySorterTest, GivesWhatABubbleSortGives) {
  std::mt19937 random(20'010'203);
  for (int round = 0; round < 200; ++round) {
    std::vector<std::wstring> keys(random() % 60);
    for (std::wstring& key : keys) {
      key = random() % 2 == 0 ? L"commonbeginning" : L"";
      for (std::size_t length = random() % 12; length > 0; --length) {
        key += L"abAB\x00E4\x00C4 ~"[random() % 8];
      }
    }
    EXPECT_EQ(Sorted(keys, true), BubbleSorted(keys, true));
    EXPECT_EQ(Sorted(keys, false), BubbleSorted(keys, false));
  }
}

class SortOrderTest : public ListingTest {
 protected:
  std::wstring Order(OrderBy by, bool orderAZ = true) {
    Filter.OrderBy = by;
    Filter.OrderAZ = orderAZ;
    return List(kFlat).at(1);
  }
};

TEST_F(SortOrderTest, ByNameIgnoresLetterCaseAndPutsDirectoriesFirst) {
  Tree().Dir(L"C:\\Data").File(L"Bb").File(L"aA").Folder(L"Zz").Folder(L"Yy").File(L"ab");
  EXPECT_THAT(Order(OrderBy::Name), StartsWith(L"0 C:\\Data: Yy Zz aA Ab Bb ("));
}

TEST_F(SortOrderTest, DescendingPutsFilesBeforeDirectories) {
  Tree().Dir(L"C:\\Data").File(L"a1").Folder(L"d1").File(L"b1").Folder(L"e1");
  EXPECT_THAT(Order(OrderBy::Name, false), StartsWith(L"0 C:\\Data: B1 A1 E1 D1 ("));
}

TEST_F(SortOrderTest, ByDosName) {
  Tree()
      .Dir(L"C:\\Data")
      .File(L"aaa long", 0)
      .Short(L"ZZZ~1")
      .File(L"B")
      .File(L"zzz long")
      .Short(L"AAA~1")
      .Folder(L"Z");
  EXPECT_THAT(Order(OrderBy::DosName), StartsWith(L"0 C:\\Data: Z Zzz long B Aaa long ("));
}

TEST_F(SortOrderTest, BySizeThenByName) {
  Tree().Dir(L"C:\\Data").File(L"c", 9).File(L"b", 10).File(L"a", 10).File(L"huge", 1ULL << 40).Folder(L"dir");
  EXPECT_THAT(Order(OrderBy::Size), StartsWith(L"0 C:\\Data: Dir C A B Huge ("));
  EXPECT_THAT(Order(OrderBy::Size, false), StartsWith(L"0 C:\\Data: Huge B A C Dir ("));
}

// Sizes end at 922,337,203,685,477, which has the fifteen digits of a key: the last of them are never all that counts.
TEST_F(SortOrderTest, BySizeHugeFilesComeLast) {
  Tree().Dir(L"C:\\Data").File(L"huge", 2'000'000'000'000'007ULL).File(L"large", 900'000'000'000'000).File(L"tiny", 8);
  EXPECT_THAT(Order(OrderBy::Size), StartsWith(L"0 C:\\Data: Tiny Large Huge ("));
}

TEST_F(SortOrderTest, ByDateToTheMinuteThenByName) {
  Tree()
      .Dir(L"C:\\Data")
      .File(L"b")
      .Written({2000, 1, 1, 10, 0, 0})
      .File(L"a")
      .Written({2000, 1, 1, 10, 0, 59})
      .File(L"old")
      .Written({1999, 12, 31, 23, 59, 0})
      .File(L"new")
      .Written({2000, 1, 1, 10, 1, 0});
  EXPECT_THAT(Order(OrderBy::Date), StartsWith(L"0 C:\\Data: Old A B New ("));
}

TEST_F(SortOrderTest, ByDateUsesTheTimeShiftedOnceMoreThanTheDateText) {
  // Shown at one offset from UTC, sorted at two: with 60 minutes the second file is past the year's end in its key.
  fakes::Fake().LocalOffsetMinutes = -60;
  Tree().Dir(L"C:\\Data").File(L"b").Written(std::uint64_t{0}).File(L"a").Written({1601, 1, 1, 1, 30, 0});
  // Both reach the first minute of file time: one from the start, the other by its second shift. Then names decide.
  EXPECT_THAT(Order(OrderBy::Date), StartsWith(L"0 C:\\Data: A B ("));
}

TEST_F(SortOrderTest, ByExtensionThenByName) {
  Tree().Dir(L"C:\\Data").File(L"b.txt").File(L"a.txt").File(L"z.bin").File(L"c.TXT").Folder(L"d.zzz");
  EXPECT_THAT(Order(OrderBy::Extension), StartsWith(L"0 C:\\Data: D.zzz Z.bin A.txt B.txt c.TXT ("));
}

TEST_F(SortOrderTest, ExtensionsSortByTheirFirstFiveCharacters) {
  Tree().Dir(L"C:\\Data").File(L"b.markdowA").File(L"a.markdoZZ");
  EXPECT_THAT(Order(OrderBy::Extension), StartsWith(L"0 C:\\Data: a.markdoZZ b.markdowA ("));
}

TEST_F(SortOrderTest, ANameWithoutExtensionSortsAmongTheExtensions) {
  Tree().Dir(L"C:\\Data").File(L"z.Txt").File(L"README1").File(L"A.Bin");
  EXPECT_THAT(Order(OrderBy::Extension), StartsWith(L"0 C:\\Data: A.Bin Readme1 z.Txt ("));
}

TEST_F(SortOrderTest, WithoutAnOrderTheEnumerationStays) {
  Tree().Dir(L"C:\\Data").File(L"c").Folder(L"z").File(L"a");
  for (const bool orderAZ : {true, false}) {
    EXPECT_THAT(Order(OrderBy::None, orderAZ), StartsWith(L"0 C:\\Data: C Z A ("));
  }
  EXPECT_THAT(Order(static_cast<OrderBy>(9)), StartsWith(L"0 C:\\Data: C Z A ("));
}

TEST_F(SortOrderTest, SubdirectoriesAreEnteredByNameWhateverTheOrder) {
  Tree().Dir(L"C:\\Data").Folder(L"c").Folder(L"A").Folder(L"b");
  Filter.OrderBy = OrderBy::None;
  List(kDeep);
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\A", L"C:\\Data\\b", L"C:\\Data\\c"));
  Watcher.Shown.clear();
  Filter.OrderAZ = false;
  List(kDeep);
  EXPECT_THAT(Watcher.Shown, ElementsAre(L"C:\\Data", L"C:\\Data\\c", L"C:\\Data\\b", L"C:\\Data\\A"));
}

}  // namespace
}  // namespace folivant
