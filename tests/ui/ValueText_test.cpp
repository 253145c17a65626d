#include "ui/ValueText.h"

#include <gtest/gtest.h>

#include "base/mdlFileRoutines.h"
#include "fakes/FakePlatform.h"
#include "output/TestTexts.h"

namespace folivant {
namespace {

TEST(FormatSize, ShowsAtMostFourDigitsOfALargerUnit) {
  const std::pair<std::uint64_t, const wchar_t*> rows[] = {
      {0, L"0 b "},
      {1, L"1 b "},
      {999, L"999 b "},
      {1'000, L"1,000 b "},
      {1'023, L"1,023 b "},
      {9'999, L"9,999 b "},
      {10'000, L"9 kb"},
      {10'240, L"10 kb"},
      {12'345, L"12 kb"},
      {5'000'000, L"4,882 kb"},
      {10'239'999, L"9,999 kb"},
      {10'240'000, L"9 Mb"},
      {10'241'000, L"9 Mb"},
      {20'000'000, L"19 Mb"},
      {5'000'000'000, L"4,768 Mb"},
      {10'485'760'000, L"9 Gb"},
      {10'737'418'240'000, L"9 Tb"},
  };
  const Messages texts = TestTexts();
  for (const auto& [bytes, text] : rows) {
    EXPECT_EQ(FormatSize(Currency::FromWhole(bytes), texts), text) << bytes;
  }
}

TEST(FormatSize, HoldsTheLargestValue) {
  EXPECT_EQ(FormatSize(Currency::FromWhole(922'337'203'685'477), TestTexts()), L"838 Tb");
}

TEST(FormatSize, PadsOrCutsTheUnitToTwoCharacters) {
  Messages texts = TestTexts();
  texts.Set(static_cast<std::size_t>(TextId::UnitBytes), L"");
  texts.Set(static_cast<std::size_t>(TextId::UnitKilobytes), L"kilobytes");
  EXPECT_EQ(FormatSize(Currency::FromWhole(5), texts), L"5   ");
  EXPECT_EQ(FormatSize(Currency::FromWhole(20'480), texts), L"20 ki");
}

TEST(FormatSize, GroupsWithTheUsersSeparator) {
  fakes::Fake().Locale.ThousandsSeparator = L"\u00a0";
  EXPECT_EQ(FormatSize(Currency::FromWhole(1'234), TestTexts()), L"1\u00a0234 b ");
  fakes::Fake().Locale.ThousandsSeparator = L"";
  EXPECT_EQ(FormatSize(Currency::FromWhole(1'234), TestTexts()), L"1234 b ");
}

TEST(AppendSize, KeepsWhatTheTextHoldsAlready) {
  std::wstring text = L"total: ";
  AppendSize(Currency::FromWhole(2), TestTexts(), text);
  EXPECT_EQ(text, L"total: 2 b ");
}

TEST(FormatGrouped, PutsASeparatorBetweenGroupsOfThree) {
  EXPECT_EQ(FormatGrouped(0), L"0");
  EXPECT_EQ(FormatGrouped(999), L"999");
  EXPECT_EQ(FormatGrouped(1'000), L"1,000");
  EXPECT_EQ(FormatGrouped(1'234'567), L"1,234,567");
  EXPECT_EQ(FormatGrouped(-1'234), L"-1,234");
}

TEST(DatePatternOf, KnowsSixFormats) {
  EXPECT_EQ(DatePatternOf(0), L"dd/mm/yy");
  EXPECT_EQ(DatePatternOf(1), L"mm/dd/yy");
  EXPECT_EQ(DatePatternOf(2), L"yy/mm/dd");
  EXPECT_EQ(DatePatternOf(3), L"dd/mm/yyyy");
  EXPECT_EQ(DatePatternOf(4), L"mm/dd/yyyy");
  EXPECT_EQ(DatePatternOf(5), L"yyyy/mm/dd");
  EXPECT_EQ(DatePatternOf(6), L"");
  EXPECT_EQ(DatePatternOf(-1), L"");
}

TEST(FormatDate, FillsEveryPart) {
  const platform::CalendarTime time = {2026, 1, 2, 3, 4, 5};
  EXPECT_EQ(FormatDate(time, L"dd/mm/yy"), L"02/01/26");
  EXPECT_EQ(FormatDate(time, L"mm/dd/yyyy"), L"01/02/2026");
  EXPECT_EQ(FormatDate(time, L"yyyy/mm/dd hh:nn"), L"2026/01/02 03:04");
  EXPECT_EQ(FormatDate({2005, 12, 31, 23, 59, 59}, L"yy/mm/dd hh:nn"), L"05/12/31 23:59");
}

TEST(FormatDate, UsesTheUsersDateSeparator) {
  fakes::Fake().Locale.DateSeparator = L".";
  EXPECT_EQ(FormatDate({2026, 1, 2}, L"dd/mm/yyyy"), L"02.01.2026");
}

}  // namespace
}  // namespace folivant
