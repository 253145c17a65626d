#include "output/EntryFormatting.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"
#include "output/TestTexts.h"

namespace folivant {
namespace {

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
