#include "scan/Filter.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

class FilterTest : public testing::Test {
 protected:
  FilterTest() {
    using enum AttributeChoice;
    Settings.Attributes = {DoNotCare, DoNotCare, DoNotCare, DoNotCare, DoNotCare};
    Entry.Name = L"a.txt";
    Entry.Attributes = platform::kArchive;
    Entry.LastWrite = fakes::FileTime({1999, 9, 30, 10, 15, 0});
  }
  bool Passes() {
    platform::FindData entry = Entry;
    return MatchesFilter(entry, Settings, NamePatterns(Settings.FilterName), platform::LocalOffset());
  }
  bool PassesWithSize(std::uint64_t size) {
    Entry.Size = size;
    return Passes();
  }

  FilterSettings Settings;
  platform::FindData Entry;
};

TEST_F(FilterTest, WithEveryTestOffEverythingPasses) {
  Settings.FilterName = L"*.doc";
  Settings.FilterSize = 1;
  Settings.DateMin = Settings.DateMax = 1;
  Settings.Attributes.fill(AttributeChoice::MustNotHave);
  EXPECT_TRUE(Passes());
}

TEST_F(FilterTest, TestsTheNameOnlyIfSwitchedOn) {
  Settings.FilterName = L"*.doc";
  EXPECT_TRUE(Passes());
  Settings.NameOn = true;
  EXPECT_FALSE(Passes());
}

TEST_F(FilterTest, AtLeastKeepsTheLimitItself) {
  Settings.SizeOn = true;
  Settings.SizeMin = true;
  Settings.FilterSize = 1;
  EXPECT_TRUE(PassesWithSize(1024));
  EXPECT_FALSE(PassesWithSize(1023));
}

TEST_F(FilterTest, AtMostKeepsTheLimitItself) {
  Settings.SizeOn = true;
  Settings.SizeMin = false;
  Settings.FilterSize = 1;
  EXPECT_TRUE(PassesWithSize(1024));
  EXPECT_FALSE(PassesWithSize(1025));
}

TEST_F(FilterTest, LargeSizesAndLimitsDoNotOverflow) {
  Settings.SizeOn = true;
  Settings.FilterSize = 0x7FFF'FFFF;             // just below 2 TB
  EXPECT_TRUE(PassesWithSize(0x200'0000'0000));  // 2 TB
  EXPECT_FALSE(PassesWithSize(0xFFFF'FFFF));
}

TEST_F(FilterTest, TheLastDayOfTheRangeAdmitsItsMidnightAlone) {
  Settings.DateOn = true;
  Settings.DateMin = ToDateValue({1999, 9, 25});
  Settings.DateMax = ToDateValue({1999, 9, 30});
  EXPECT_FALSE(Passes());  // written at 10:15
  Entry.LastWrite = fakes::FileTime({1999, 9, 30, 0, 0, 0});
  EXPECT_TRUE(Passes());
  Entry.LastWrite = fakes::FileTime({1999, 9, 30, 0, 0, 1});
  EXPECT_FALSE(Passes());
}

TEST_F(FilterTest, TheFirstDayOfTheRangeIsAdmittedWhole) {
  Settings.DateOn = true;
  Settings.DateMin = ToDateValue({1999, 9, 30});
  Settings.DateMax = ToDateValue({1999, 10, 2});
  EXPECT_TRUE(Passes());
  Entry.LastWrite = fakes::FileTime({1999, 9, 29, 23, 59, 59});
  EXPECT_FALSE(Passes());
}

TEST_F(FilterTest, TheUpperLimitSeesTheTimeConvertedTwice) {
  fakes::Fake().LocalOffsetMinutes = 60;
  Settings.DateOn = true;
  Entry.LastWrite = fakes::FileTime({1999, 9, 30, 10, 0, 0});
  Settings.DateMin = ToDateValue({1999, 9, 30, 11, 0, 0});
  Settings.DateMax = ToDateValue({1999, 9, 30, 12, 0, 0});
  EXPECT_TRUE(Passes());
  Settings.DateMin = ToDateValue({1999, 9, 30, 11, 0, 1});
  EXPECT_FALSE(Passes());
  Settings.DateMin = ToDateValue({1999, 9, 30, 11, 0, 0});
  Settings.DateMax = ToDateValue({1999, 9, 30, 11, 59, 59});
  EXPECT_FALSE(Passes());
}

TEST_F(FilterTest, TheRecordKeepsWhatTheDateTestMadeOfIt) {
  fakes::Fake().LocalOffsetMinutes = 60;
  Settings.DateOn = true;
  Settings.DateMin = ToDateValue({1999, 1, 1});
  Settings.DateMax = ToDateValue({2000, 1, 1});
  MatchesFilter(Entry, Settings, NamePatterns(L""), platform::LocalOffset());
  EXPECT_EQ(Entry.LastWrite, fakes::FileTime({1999, 9, 30, 12, 15, 0}));
}

TEST_F(FilterTest, AnEntryThatFailsTheLowerLimitIsConvertedOnce) {
  fakes::Fake().LocalOffsetMinutes = 60;
  Settings.DateOn = true;
  Settings.DateMin = ToDateValue({2000, 1, 1});
  Settings.DateMax = ToDateValue({2001, 1, 1});
  MatchesFilter(Entry, Settings, NamePatterns(L""), platform::LocalOffset());
  EXPECT_EQ(Entry.LastWrite, fakes::FileTime({1999, 9, 30, 11, 15, 0}));
}

TEST_F(FilterTest, EachAttributeChoiceLooksAtItsOwnBit) {
  const std::pair<AttributeIndex, std::uint32_t> bits[] = {{kAttrArchive, platform::kArchive},
                                                           {kAttrReadOnly, platform::kReadOnly},
                                                           {kAttrHidden, platform::kHidden},
                                                           {kAttrSystem, platform::kSystem},
                                                           {kAttrDirectory, platform::kDirectory}};
  Settings.AttrOn = true;
  for (const auto& [index, bit] : bits) {
    Settings.Attributes[index] = AttributeChoice::MustHave;
    Entry.Attributes = bit;
    EXPECT_TRUE(Passes());
    Entry.Attributes = ~bit;
    EXPECT_FALSE(Passes());
    Settings.Attributes[index] = AttributeChoice::MustNotHave;
    EXPECT_TRUE(Passes());
    Entry.Attributes = bit;
    EXPECT_FALSE(Passes());
    Settings.Attributes[index] = AttributeChoice::DoNotCare;
    EXPECT_TRUE(Passes());
  }
}

TEST_F(FilterTest, TheDefaultChoicesDropHiddenAndSystemFiles) {
  using enum AttributeChoice;
  Settings.AttrOn = true;
  Settings.Attributes = {DoNotCare, DoNotCare, MustNotHave, MustNotHave, DoNotCare};
  EXPECT_TRUE(Passes());
  Entry.Attributes = platform::kArchive | platform::kHidden;
  EXPECT_FALSE(Passes());
  Entry.Attributes = platform::kSystem;
  EXPECT_FALSE(Passes());
  Entry.Attributes = platform::kDirectory;
  EXPECT_TRUE(Passes());
}

TEST_F(FilterTest, SizesBeyondFourGigabytesAreWhole) {
  Entry.Size = 0x1'FFFF'FFFF;
  EXPECT_EQ(FileSizeOf(Entry).Whole(), 0x1'FFFF'FFFFLL);
}

}  // namespace
}  // namespace folivant
