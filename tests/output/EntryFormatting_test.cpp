#include "output/EntryFormatting.h"

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
  texts.Set(static_cast<std::size_t>(Text::UnitBytes), L"");
  texts.Set(static_cast<std::size_t>(Text::UnitKilobytes), L"kilobytes");
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

TEST(TotalsSentence, ChoosesSingularForExactlyOne) {
  const Messages texts = TestTexts();
  const auto sentence = [&texts](std::int32_t files, std::int32_t directories, std::uint64_t bytes) {
    return TotalsSentence({Currency::FromWhole(bytes), files, directories}, texts);
  };
  EXPECT_EQ(sentence(1, 1, 5), L"1 file, 1 directory, 5 b ");
  EXPECT_EQ(sentence(0, 0, 0), L"0 files, 0 directories, 0 b ");
  EXPECT_EQ(sentence(2, 3, 5'000'000), L"2 files, 3 directories, 4,882 kb");
}

TEST(TotalsSentence, DoesNotGroupItsCounts) {
  EXPECT_EQ(TotalsSentence({Currency(), 12'345, 1'234}, TestTexts()), L"12345 files, 1234 directories, 0 b ");
}

TEST(FreeSpaceSentence, CombinesHalvesAsUnsigned) {
  // 3,221,225,472 has the top bit of a 32-bit half set; 12,884,901,888 is three times two to the power 32.
  EXPECT_EQ(FreeSpaceSentence({3'221'225'472, 12'884'901'888}, TestTexts()), L"3,072 Mb free of 12 Gb.");
}

TEST(FreeSpaceSentence, ReportsVolumesOfManyTerabytes) {
  EXPECT_EQ(FreeSpaceSentence({10'995'116'277'760, 109'951'162'777'600}, TestTexts()), L"10 Tb free of 100 Tb.");
}

class FilterDescriptions : public testing::Test {
 protected:
  FilterDescriptions() {
    filter_.FilterName = L"*.txt";
    filter_.FilterSize = 1'000;
    filter_.DateMin = ToDateValue({1999, 9, 25});
    filter_.DateMax = ToDateValue({1999, 9, 30});
  }
  std::wstring Described() const { return FilterDescription(filter_, TestTexts()); }
  FilterSettings filter_;
};

TEST_F(FilterDescriptions, AreEmptyWithoutTests) {
  EXPECT_EQ(Described(), L"");
}

TEST_F(FilterDescriptions, JoinNameSizeAndDate) {
  filter_.NameOn = filter_.SizeOn = filter_.DateOn = true;
  EXPECT_EQ(Described(), L"*.txt, >1000 kb, 9/25/1999 - 9/30/1999");
}

TEST_F(FilterDescriptions, ShowNameAndDateRange) {
  filter_.NameOn = filter_.DateOn = true;
  EXPECT_EQ(Described(), L"*.txt, 9/25/1999 - 9/30/1999");
}

TEST_F(FilterDescriptions, ShowTheDirectionOfTheSize) {
  filter_.SizeOn = true;
  EXPECT_EQ(Described(), L">1000 kb");
  filter_.SizeMin = false;
  EXPECT_EQ(Described(), L"<1000 kb");
}

TEST_F(FilterDescriptions, KeepTheNameAsTyped) {
  filter_.NameOn = true;
  filter_.FilterName = L"*.txt,-a*, *.doc";
  EXPECT_EQ(Described(), L"*.txt,-a*, *.doc");
  filter_.FilterName = L"";
  EXPECT_EQ(Described(), L"");
}

TEST_F(FilterDescriptions, LeaveOutAttributes) {
  filter_.AttrOn = true;
  filter_.Attributes.fill(AttributeChoice::MustHave);
  EXPECT_EQ(Described(), L"");
}

}  // namespace
}  // namespace folivant
