#include "scan/TextArena.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace folivant {
namespace {

TEST(TextArenaTest, TextsStayWhereTheyAre) {
  TextArena arena;
  std::vector<std::wstring_view> kept;
  for (int i = 0; i < 20'000; ++i) {
    kept.push_back(arena.Add(L"text " + std::to_wstring(i)));
  }
  for (int i = 0; i < 20'000; ++i) {
    ASSERT_EQ(kept[static_cast<std::size_t>(i)], L"text " + std::to_wstring(i));
  }
}

TEST(TextArenaTest, AReservedTextMayBecomeShorter) {
  TextArena arena;
  wchar_t* text = arena.Reserve(10);
  text[0] = L'a';
  text[1] = L'b';
  EXPECT_EQ(arena.Keep(2), L"ab");
  EXPECT_EQ(arena.Add(L"c"), L"c");
}

TEST(TextArenaTest, TakesTextsLongerThanABlock) {
  TextArena arena;
  const std::wstring longText(200'000, L'x');
  const std::wstring_view before = arena.Add(L"before");
  EXPECT_EQ(arena.Add(longText), longText);
  EXPECT_EQ(before, L"before");
  EXPECT_EQ(arena.Add(L""), L"");
}

TEST(TextArenaTest, ClearingReusesTheFirstBlock) {
  TextArena arena;
  const wchar_t* first = arena.Add(L"a").data();
  arena.Add(std::wstring(200'000, L'x'));
  arena.Clear();
  EXPECT_EQ(arena.Add(L"b").data(), first);
}

TEST(TextArenaTest, ClearingBeforeTheFirstTextChangesNothing) {
  TextArena arena;
  arena.Clear();
  const wchar_t* first = arena.Add(L"a").data();
  arena.Clear();
  const auto takesWhatIsFree = std::make_unique_for_overwrite<wchar_t[]>(16 * 1024);
  EXPECT_EQ(arena.Add(L"b").data(), first);
}

TEST(TextArenaTest, AFirstBlockOfAnySizeIsReusedWhole) {
  TextArena arena;
  const std::wstring longText(200'000, L'x');
  const wchar_t* first = arena.Add(longText).data();
  arena.Clear();
  EXPECT_EQ(arena.Add(longText).data(), first);
  EXPECT_NE(arena.Add(L"b").data(), first + longText.size()) << "it is full";
}

}  // namespace
}  // namespace folivant
