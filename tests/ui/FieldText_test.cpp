#include "ui/FieldText.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

// The tests' locale is English (United States): "," between thousands, "." before decimals.

TEST(ParseWholeNumber, TakesSignBlanksAndSeparators) {
  EXPECT_EQ(ParseWholeNumber(L"12"), 12);
  EXPECT_EQ(ParseWholeNumber(L"  -7 "), -7);
  EXPECT_EQ(ParseWholeNumber(L"+3"), 3);
  EXPECT_EQ(ParseWholeNumber(L"1,204"), 1204);
}

TEST(ParseWholeNumber, RoundsHalvesToEven) {
  EXPECT_EQ(ParseWholeNumber(L"2.5"), 2);
  EXPECT_EQ(ParseWholeNumber(L"3.5"), 4);
  EXPECT_EQ(ParseWholeNumber(L"-2.5"), -2);
  EXPECT_EQ(ParseWholeNumber(L"2.51"), 3);
}

TEST(ParseWholeNumber, RefusesWhatIsNoNumber) {
  for (const wchar_t* text : {L"", L" ", L"abc", L"1a", L"1 2", L"--1", L"1-", L"1-2", L"1+2", L"+-1", L"++1", L".",
                              L"1.2.3", L"0x10", L"1e3"}) {
    EXPECT_EQ(ParseWholeNumber(text), std::nullopt) << testing::PrintToString(std::wstring(text));
  }
}

TEST(ParseWholeNumber, RefusesWhatDoesNotFitIn32Bits) {
  EXPECT_EQ(ParseWholeNumber(L"2147483647"), 2147483647);
  EXPECT_EQ(ParseWholeNumber(L"2147483648"), std::nullopt);
  EXPECT_EQ(ParseWholeNumber(L"-2147483648"), -2147483648LL);
  EXPECT_EQ(ParseWholeNumber(L"-2147483649"), std::nullopt);
  EXPECT_EQ(ParseWholeNumber(L"2147483647.5"), std::nullopt) << "rounds beyond the limit";
}

TEST(ParseSingle, TakesFractions) {
  EXPECT_EQ(ParseSingle(L"0.5"), 0.5F);
  EXPECT_EQ(ParseSingle(L".5"), 0.5F);
  EXPECT_EQ(ParseSingle(L"-12.75"), -12.75F);
  EXPECT_EQ(ParseSingle(L"20"), 20.0F);
  EXPECT_EQ(ParseSingle(L"wide"), std::nullopt);
  EXPECT_EQ(ParseSingle(L""), std::nullopt);
}

TEST(LeadingWholeNumber, TakesTheBeginning) {
  EXPECT_EQ(LeadingWholeNumber(L"80"), 80);
  EXPECT_EQ(LeadingWholeNumber(L" 80 characters"), 80);
  EXPECT_EQ(LeadingWholeNumber(L"-3x"), -3);
  EXPECT_EQ(LeadingWholeNumber(L"+4"), 4);
  EXPECT_EQ(LeadingWholeNumber(L"2.5.1"), 2);
  EXPECT_EQ(LeadingWholeNumber(L"3.5 lines"), 4) << "halves to even";
}

TEST(LeadingWholeNumber, IsZeroWithoutOne) {
  EXPECT_EQ(LeadingWholeNumber(L""), 0);
  EXPECT_EQ(LeadingWholeNumber(L"wide 80"), 0);
  EXPECT_EQ(LeadingWholeNumber(L"-"), 0);
  EXPECT_EQ(LeadingWholeNumber(L"+-5"), 0);
}

TEST(LeadingWholeNumber, StopsAtTheLimits) {
  EXPECT_EQ(LeadingWholeNumber(L"99999999999"), 2147483647);
  EXPECT_EQ(LeadingWholeNumber(L"-99999999999"), -2147483648LL);
}

TEST(SingleText, HasNoZerosAtTheEnd) {
  EXPECT_EQ(SingleText(20.0F), L"20");
  EXPECT_EQ(SingleText(0.5F), L"0.5");
  EXPECT_EQ(SingleText(0.13F), L"0.13");
  EXPECT_EQ(SingleText(20.3F), L"20.3");
  EXPECT_EQ(SingleText(-1.25F), L"-1.25");
  EXPECT_EQ(SingleText(0.0F), L"0");
}

TEST(FieldText, FollowsTheUsersLocale) {
  const struct {
    const wchar_t* thousands;
    const wchar_t* decimal;
    const wchar_t* whole;
    const wchar_t* fraction;
  } rows[] = {
      {L",", L".", L"1,204", L"-12.75"},                      // English
      {L".", L",", L"1.204", L"-12,75"},                      // German
      {L"\u00A0", L",", L"1\u00A0204", L"-12,75"},            // French
      {L"\u066C", L"\u066B", L"1\u066C204", L"-12\u066B75"},  // Arabic
      {L"'", L"\u00B7", L"1'204", L"-12\u00B775"},            // a user's own
  };
  for (const auto& row : rows) {
    fakes::Fake().Locale.ThousandsSeparator = row.thousands;
    fakes::Fake().Locale.DecimalSeparator = row.decimal;
    EXPECT_EQ(ParseWholeNumber(row.whole), 1204) << testing::PrintToString(std::wstring(row.whole));
    EXPECT_EQ(ParseSingle(row.fraction), -12.75F) << testing::PrintToString(std::wstring(row.fraction));
    EXPECT_EQ(SingleText(-12.75F), row.fraction);
  }
}

TEST(FieldName, IsTheCaptionWithoutItsMarks) {
  EXPECT_EQ(FieldName(L"&Size:"), L"Size");
  EXPECT_EQ(FieldName(L"Max. subdirectory &level:"), L"Max. subdirectory level");
  EXPECT_EQ(FieldName(L"Date format :"), L"Date format");
  EXPECT_EQ(FieldName(L":"), L"");
}

}  // namespace
}  // namespace folivant
