#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

using Locale = platform::UserLocale;

// Separators between thousands and before decimals, as systems of these countries have them.
const Locale kAmerican{L",", L".", L"/"};
const Locale kGerman{L".", L",", L"."};
const Locale kFrench{L"\u202F", L",", L"/"};
const Locale kPolish{L"\u00A0", L",", L"."};
const Locale kSwiss{L"\u2019", L".", L"."};
const Locale kPersian{L",", L"/", L"/"};
const Locale kArabic{L"\u066C", L"\u066B", L"/"};
const Locale kOwn{L"'", L"\u00B7", L"/"};
const Locale kUngrouped{L"", L".", L"/"};
const Locale kAlike{L".", L".", L"/"};
const Locale kMinus{L",", L"-", L"/"};  // nothing keeps a user from this
const Locale kTwoLetters{L"::", L"..", L"/"};
const Locale* const kEveryLocale[] = {&kAmerican, &kGerman, &kFrench,    &kPolish, &kSwiss, &kPersian,
                                      &kArabic,   &kOwn,    &kUngrouped, &kAlike,  &kMinus, &kTwoLetters};

/// For messages of failed tests.
std::string Named(const Locale& locale, const std::wstring& text) {
  return testing::PrintToString(text) + " between thousands " + testing::PrintToString(locale.ThousandsSeparator) +
         " before decimals " + testing::PrintToString(locale.DecimalSeparator);
}

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

struct Row {
  const Locale* In;
  const wchar_t* Text;
  double Expected;  ///< kNone: no number
};

template <class Number>
double ValueOf(const NumberRead<Number>& read) {
  return read.Value ? static_cast<double>(*read.Value) : kNone;
}

template <std::size_t Count, class Reading>
void ExpectEach(const Row (&rows)[Count], Reading read) {
  for (const Row& row : rows) {
    fakes::Fake().Locale = *row.In;
    const double value = read(row.Text);
    EXPECT_TRUE(value == row.Expected || (std::isnan(value) && std::isnan(row.Expected)))
        << Named(*row.In, row.Text) << " is " << value << " and not " << row.Expected;
  }
}

double TypedWhole(const wchar_t* text) {
  return ValueOf(ReadWhole(text, NumberSource::Typed));
}
double StoredWhole(const wchar_t* text) {
  return ValueOf(ReadWhole(text, NumberSource::Stored));
}
double TypedFraction(const wchar_t* text) {
  return ValueOf(ReadFraction<double>(text, NumberSource::Typed));
}
double StoredFraction(const wchar_t* text) {
  return ValueOf(ReadFraction<double>(text, NumberSource::Stored));
}

TEST(Numbers, PlainWholeNumbersMeanTheSameWhateverTheLocale) {
  const std::pair<const wchar_t*, double> numbers[] = {
      {L"0", 0},     {L"80", 80},     {L"-2", -2},         {L"+7", 7},
      {L"007", 7},   {L"1000", 1000}, {L"123456", 123456}, {L"2147483647", 2147483647},
      {L" 12 ", 12}, {L"-0", 0},      {L"-32768", -32768}, {L"-2147483648", -2147483648.0},
  };
  for (const Locale* const locale : kEveryLocale) {
    fakes::Fake().Locale = *locale;
    for (const auto& [text, value] : numbers) {
      EXPECT_EQ(StoredWhole(text), value) << Named(*locale, text);
      EXPECT_EQ(TypedWhole(text), value) << Named(*locale, text);
      EXPECT_EQ(StoredFraction(text), value) << Named(*locale, text);
      EXPECT_EQ(TypedFraction(text), value) << Named(*locale, text);
      EXPECT_EQ(ValueOf(ReadLeadingWhole(text)), value) << Named(*locale, text);
    }
  }
}

TEST(Numbers, WhatIsNoNumberIsNoneWhateverTheLocale) {
  for (const Locale* const locale :
       {&kAmerican, &kGerman, &kFrench, &kPolish, &kSwiss, &kPersian, &kArabic, &kOwn, &kUngrouped}) {
    fakes::Fake().Locale = *locale;
    for (const wchar_t* const text :
         {L"",     L" ",   L"abc",  L"1a",  L"a1",  L"--1",   L"1-",    L"+",    L"-",    L"+-1",
          L"0x10", L"nan", L"inf",  L"1e",  L"e5",  L"1,2,3", L"1.2.3", L"1..2", L"1,.2", L"\u0663",
          L"1\t2", L"%1",  L"1 e5", L"- 1", L"1;5", L"1-2",   L"1+2",   L"++1"}) {
      for (const auto& read : {StoredWhole, TypedWhole, StoredFraction, TypedFraction}) {
        EXPECT_TRUE(std::isnan(read(text))) << Named(*locale, text) << " is " << read(text);
      }
    }
  }
  for (const Locale* const locale : {&kAmerican, &kGerman, &kFrench, &kSwiss, &kPersian}) {
    fakes::Fake().Locale = *locale;
    for (const wchar_t* const mark : {L".", L",", L"-.", L" , "}) {
      EXPECT_TRUE(std::isnan(TypedFraction(mark))) << Named(*locale, mark);
      EXPECT_TRUE(std::isnan(StoredWhole(mark))) << Named(*locale, mark);
    }
  }
}

TEST(Numbers, AnyDecimalMarkOfAStoredNumberIsReadAsItWasMeant) {
  const Row rows[] = {
      {&kAmerican, L"12.5", 12.5},       {&kAmerican, L"12,5", 12.5},
      {&kGerman, L"12.5", 12.5},         {&kGerman, L"12,5", 12.5},
      {&kFrench, L"12,5", 12.5},         {&kFrench, L"12.5", 12.5},
      {&kSwiss, L"12,5", 12.5},          {&kPersian, L"12/5", 12.5},
      {&kPersian, L"12.5", 12.5},        {&kPersian, L"12,5", 12.5},
      {&kAmerican, L"12/5", kNone},      {&kAmerican, L".5", 0.5},
      {&kAmerican, L",5", 0.5},          {&kGerman, L"-,75", -0.75},
      {&kAmerican, L"20.", 20},          {&kAmerican, L"1,125", 1.125},
      {&kGerman, L"1.125", 1.125},       {&kGerman, L"0.125", 0.125},
      {&kAmerican, L"1,204,500", kNone}, {&kGerman, L"1.204,5", kNone},
      {&kMinus, L"12-5", 12.5},          {&kMinus, L"-2", -2},
      {&kTwoLetters, L"1..5", 1.5},      {&kTwoLetters, L"1::500", kNone},
      {&kAmerican, L"1e3", 1000},        {&kGerman, L"1e+20", 1e20},
      {&kGerman, L"1E+20", 1e20},        {&kAmerican, L"2,5e-05", 2.5e-05},
      {&kAmerican, L"1 000", kNone},     {&kPolish, L"1\u00A0000", kNone},
  };
  ExpectEach(rows, StoredFraction);
}

// "1.000" was written as one by some people and as a thousand by others. This program writes neither.
TEST(Numbers, AStoredWholeNumberThatCouldBeTwoIsNone) {
  for (const Locale* const locale : kEveryLocale) {
    fakes::Fake().Locale = *locale;
    for (const wchar_t* const text : {L"1.000", L"1,000", L"20.500", L"-3,125", L"999.999"}) {
      EXPECT_EQ(ReadWhole(text, NumberSource::Stored), NumberRead<std::int32_t>()) << Named(*locale, text);
    }
  }
  const Row rows[] = {
      {&kAmerican, L"79.6", 80},         {&kAmerican, L"79,6", 80},       {&kGerman, L"79.6", 80},
      {&kGerman, L"80,5", 80},           {&kAmerican, L"81.5", 82},       {&kAmerican, L"-0.5", 0},
      {&kGerman, L"-2,5", -2},           {&kAmerican, L"1.00", 1},        {&kAmerican, L"1.0000", 1},
      {&kGerman, L"0.500", 0},           {&kAmerican, L"1000.000", 1000}, {&kAmerican, L"1e3", 1000},
      {&kAmerican, L"1,000,000", kNone}, {&kPersian, L"1/000", kNone},
  };
  ExpectEach(rows, StoredWhole);
}

TEST(Numbers, ASeparatorOfThousandsCountsOnlyBeforeThreeDigits) {
  const Row rows[] = {
      {&kAmerican, L"1,204", 1204},
      {&kAmerican, L"20,5", 20.5},
      {&kAmerican, L"1,20", 1.2},
      {&kAmerican, L"1,2045", 1.2045},
      {&kAmerican, L"1,204.5", 1204.5},
      {&kAmerican, L"1.204", 1.204},
      {&kAmerican, L"12,345,678", 12345678},
      {&kAmerican, L"12,345,67", kNone},
      {&kAmerican, L"1,2,345", kNone},
      {&kAmerican, L"-1,000", -1000},
      {&kAmerican, L",500", 0.5},
      {&kAmerican, L"0,500", 0.5},
      {&kAmerican, L"1234,567", 1234.567},
      {&kAmerican, L"1,204,", kNone},
      {&kAmerican, L"1,204.", 1204},
      {&kGerman, L"20.5", 20.5},
      {&kGerman, L"20,5", 20.5},
      {&kGerman, L"1.204", 1204},
      {&kGerman, L"1,204", 1.204},
      {&kGerman, L"1.204,5", 1204.5},
      {&kGerman, L"1.204.5", kNone},
      {&kGerman, L"1.204.500", 1204500},
      {&kGerman, L"20.50", 20.5},
      {&kGerman, L"1,204.5", kNone},
      {&kFrench, L"1 204", 1204},
      {&kFrench, L"1\u202F204", 1204},
      {&kFrench, L"1\u00A0204,5", 1204.5},
      {&kFrench, L"1 20", kNone},
      {&kFrench, L"12.5", 12.5},
      {&kFrench, L"1 204.5", 1204.5},
      {&kPolish, L"1 204", 1204},
      {&kPolish, L"1 204 500", 1204500},
      {&kSwiss, L"1'204", 1204},
      {&kSwiss, L"1\u2019204.5", 1204.5},
      {&kSwiss, L"20,5", 20.5},
      {&kAmerican, L"1 204", kNone},
      {&kUngrouped, L"1,5", 1.5},
      {&kUngrouped, L"1 204", kNone},
      {&kAlike, L"1.204", 1.204},
      {&kArabic, L"1\u066C204\u066B5", 1204.5},
      {&kOwn, L"1'204\u00B75", 1204.5},
      {&kPersian, L"1,204", 1204},
      {&kPersian, L"1,204/5", 1204.5},
      {&kTwoLetters, L"1::204..5", 1204.5},
      {&kTwoLetters, L"1::20", kNone},
      {&kMinus, L"1,204-5", 1204.5},
      {&kAmerican, L"1e+05", 100000},
  };
  ExpectEach(rows, TypedFraction);
}

TEST(Numbers, ATypedWholeNumberIsRoundedButNeverGuessedAt) {
  const Row rows[] = {
      {&kGerman, L"20.5", 20},
      {&kGerman, L"1.000", 1000},
      {&kGerman, L"1,000", 1},
      {&kAmerican, L"1,000", 1000},
      {&kAmerican, L"1.000", 1},
      {&kAmerican, L"2.5", 2},
      {&kAmerican, L"3.5", 4},
      {&kAmerican, L"-2.5", -2},
      {&kAmerican, L"2.51", 3},
      {&kAmerican, L"12,5", 12},
      {&kFrench, L"1.000", kNone},
      {&kFrench, L"1,000", 1},
      {&kFrench, L"1.00", 1},
      {&kSwiss, L"1,000", kNone},
      {&kSwiss, L"1.000", 1},
      {&kPolish, L"1 000", 1000},
      {&kPolish, L"1 000.5", 1000},
      {&kAmerican, L"1e3", kNone},
      {&kFrench, L"0.500", 0},
      {&kFrench, L"1000.000", 1000},
      // After separators of thousands the other mark can only be a decimal one.
      {&kFrench, L"1 000.250", 1000},
      {&kSwiss, L"1'000,250", 1000},
  };
  ExpectEach(rows, TypedWhole);
}

TEST(Numbers, ALeadingNumberIsTheBeginningOfATextOrZero) {
  const Row rows[] = {
      {&kAmerican, L"80", 80},        {&kAmerican, L" 80 characters", 80},
      {&kAmerican, L"-3x", -3},       {&kAmerican, L"+4", 4},
      {&kAmerican, L"2.5.1", 2},      {&kAmerican, L"3.5 wide", 4},
      {&kAmerican, L"", 0},           {&kAmerican, L"wide 80", 0},
      {&kAmerican, L"-", 0},          {&kAmerican, L"1,000 wide", 1000},
      {&kAmerican, L"80, or so", 80}, {&kAmerican, L"80em", 80},
      {&kAmerican, L"2e3", 2},        {&kGerman, L"1.000 breit", 1000},
      {&kGerman, L"20.5", 20},        {&kFrench, L"1 000 car.", 1000},
      {&kFrench, L"80 car.", 80},     {&kGerman, L".", 0},
  };
  ExpectEach(rows, [](const wchar_t* text) { return ValueOf(ReadLeadingWhole(text)); });
}

TEST(Numbers, ANumberOutsideItsRangeIsToldFromNone) {
  constexpr WholeRange kSmall{-5, 9'999};
  const struct {
    const wchar_t* text;
    bool fits;
  } rows[] = {{L"-5", true},     {L"-6", false},          {L"9999", true},   {L"10000", false},
              {L"9999.4", true}, {L"9999.5", false},      {L"-5.5", false},  {L"99999999999999999999", false},
              {L"-5.4", true},   {L"-2147483649", false}, {L"9,999.2", true}};
  for (const auto& row : rows) {
    const auto typed = ReadWhole(row.text, NumberSource::Typed, kSmall);
    EXPECT_EQ(typed.Value.has_value(), row.fits) << testing::PrintToString(std::wstring(row.text));
    EXPECT_EQ(typed.OutOfRange, !row.fits) << testing::PrintToString(std::wstring(row.text));
    EXPECT_EQ(ReadLeadingWhole(row.text, kSmall), typed) << testing::PrintToString(std::wstring(row.text));
  }
  for (const wchar_t* const none : {L"", L"-", L"many"}) {
    EXPECT_FALSE(ReadWhole(none, NumberSource::Typed, kSmall).OutOfRange) << none;
    EXPECT_FALSE(ReadFraction<double>(none, NumberSource::Stored).OutOfRange) << none;
  }
  EXPECT_FALSE(ReadFraction<double>(L"e5", NumberSource::Stored).OutOfRange) << "an exponent of nothing";
  EXPECT_TRUE(ReadWhole(L"2147483647.5", NumberSource::Stored).OutOfRange) << "rounds beyond the limit";
  EXPECT_TRUE(ReadWhole(L"32768", NumberSource::Stored, kRangeOf<std::int16_t>).OutOfRange);
  EXPECT_TRUE(ReadWhole(std::wstring(400, L'9'), NumberSource::Stored).OutOfRange);
  EXPECT_TRUE(ReadFraction<float>(L"1e39", NumberSource::Stored).OutOfRange);
  EXPECT_TRUE(ReadFraction<float>(std::wstring(60, L'9'), NumberSource::Typed).OutOfRange);
  EXPECT_EQ(ReadFraction<float>(L"3.4e38", NumberSource::Typed).Value, 3.4e38F);
}

TEST(Numbers, ZeroIsTheLeadingNumberOnlyWhereTheRangeHasIt) {
  EXPECT_TRUE(ReadLeadingWhole(L"wide", {1, 9}).OutOfRange);
}

TEST(Numbers, APlainNumberHasNothingButDigitsAndASign) {
  EXPECT_EQ(ReadPlainWhole(L"120"), 120);
  EXPECT_EQ(ReadPlainWhole(L"-40"), -40);
  EXPECT_EQ(ReadPlainWhole(L"+40"), 40);
  for (const wchar_t* const text : {L"", L"-", L" 1", L"1 ", L"1.0", L"1,000", L"1e1", L"99999999999", L"a"}) {
    EXPECT_EQ(ReadPlainWhole(text), std::nullopt) << testing::PrintToString(std::wstring(text));
  }
}

TEST(Numbers, DigitsAreTakenOffTheBeginning) {
  std::wstring_view text = L"1999/09";
  EXPECT_EQ(TakeDigits(text), 1999);
  EXPECT_EQ(text, L"/09");
  EXPECT_EQ(TakeDigits(text), std::nullopt);
  EXPECT_EQ(text, L"/09");
  text = L"99999999999x";
  EXPECT_EQ(TakeDigits(text), std::nullopt) << "too many";
}

TEST(Numbers, WholeNumbersAreWrittenPlainWhateverTheLocale) {
  for (const Locale* const locale : kEveryLocale) {
    fakes::Fake().Locale = *locale;
    EXPECT_EQ(WholeText(1204500), L"1204500");
    EXPECT_EQ(WholeText(-2), L"-2");
    EXPECT_EQ(WholeText(std::numeric_limits<std::int32_t>::min()), L"-2147483648");
    EXPECT_EQ(PaddedText(7, 4), L"0007");
    EXPECT_EQ(PaddedText(12345, 4), L"12345");
  }
}

TEST(Numbers, SinglesAreTheShortestTextThatReadsBack) {
  const std::pair<float, const wchar_t*> rows[] = {
      {20.0F, L"20"}, {0.5F, L"0.5"},   {0.13F, L"0.13"},  {-1.25F, L"-1.25"},
      {0.0F, L"0"},   {12.3F, L"12.3"}, {1e20F, L"1e+20"}, {12.345678F, L"12.345678"}};
  for (const auto& [number, text] : rows) {
    fakes::Fake().Locale = kAmerican;
    EXPECT_EQ(SingleText(number), text);
    for (const Locale* const locale :
         {&kAmerican, &kGerman, &kFrench, &kSwiss, &kPersian, &kArabic, &kOwn, &kTwoLetters}) {
      fakes::Fake().Locale = *locale;
      EXPECT_EQ(ReadFraction<float>(SingleText(number), NumberSource::Stored).Value, number) << number;
      EXPECT_EQ(ReadFraction<float>(SingleText(number), NumberSource::Typed).Value, number) << number;
    }
  }
  fakes::Fake().Locale = kGerman;
  EXPECT_EQ(SingleText(-1.25F), L"-1,25");
}

TEST(Numbers, LimitsAreNamedAsTheyAreStoredAndAsTheyAreTyped) {
  fakes::Fake().Locale = kGerman;
  EXPECT_EQ(LimitsAsStored(kRangeOf<std::int16_t>), (ValueLimits{L"-32768", L"32767"}));
  EXPECT_EQ(LimitsAsTyped(kRangeOf<std::int16_t>), (ValueLimits{L"-32.768", L"32.767"}));
  for (const WholeRange range : {kRangeOf<std::int16_t>, WholeRange{}, WholeRange{0, 9'999}}) {
    const ValueLimits stored = LimitsAsStored(range);
    const ValueLimits typed = LimitsAsTyped(range);
    EXPECT_EQ(ReadWhole(stored.Lowest, NumberSource::Stored, range).Value, range.Lowest);
    EXPECT_EQ(ReadWhole(stored.Highest, NumberSource::Stored, range).Value, range.Highest);
    EXPECT_EQ(ReadWhole(typed.Lowest, NumberSource::Typed, range).Value, range.Lowest);
    EXPECT_EQ(ReadWhole(typed.Highest, NumberSource::Typed, range).Value, range.Highest);
  }
  EXPECT_EQ(ReadFraction<float>(SingleLimits().Highest, NumberSource::Typed).Value, std::numeric_limits<float>::max());
}

}  // namespace
}  // namespace folivant
