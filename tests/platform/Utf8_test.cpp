#include "platform/Utf8.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace folivant::platform {
namespace {

/// Lengths of one to four bytes at both their ends.
const std::pair<const wchar_t*, const char*> kCharacters[] = {
    {L"A", "A"},
    {L"\u0080", "\xC2\x80"},
    {L"\u07FF", "\xDF\xBF"},
    {L"\u0800", "\xE0\xA0\x80"},
    {L"\uFFFF", "\xEF\xBF\xBF"},
    {L"\U00010000", "\xF0\x90\x80\x80"},
    {L"\U0001F600", "\xF0\x9F\x98\x80"},
    {L"\U0001F601", "\xF0\x9F\x98\x81"},
    {L"\U0010FFFF", "\xF4\x8F\xBF\xBF"},
};

TEST(Utf8, GoesThereAndBack) {
  for (const auto& [text, bytes] : kCharacters) {
    EXPECT_EQ(FromUtf8(bytes), text);
    EXPECT_EQ(ToUtf8(text), bytes);
  }
  EXPECT_EQ(FromUtf8("Caf\xC3\xA9 \xD0\x96"), L"Caf\u00E9 \u0416");
  EXPECT_EQ(ToUtf8(L"Caf\u00E9 \u0416"), "Caf\xC3\xA9 \xD0\x96");
  EXPECT_EQ(FromUtf8(""), L"");
  EXPECT_EQ(ToUtf8(L""), "");
}

// Worked out from Wine's rules for broken sequences; each row is some bytes and what is shown.
TEST(Utf8, ShowsBrokenSequencesAsReplacementCharacters) {
  const std::map<std::string, std::wstring> rows{
      {"a\xFFz", L"a\uFFFDz"},                                // no first byte at all
      {"b\xE2\x82", L"b\uFFFD"},                              // cut off
      {"c\xC0\xAFz", L"c\uFFFD\uFFFDz"},                      // a form that is never used
      {"d\xED\xA0\x80z", L"d\uFFFD\uFFFDz"},                  // half of a pair
      {"e\xF4\x90\x80\x80", L"e\uFFFD\uFFFD\uFFFD"},          // beyond the last character
      {"f\xE2\x41z", L"f\uFFFDAz"},                           // broken off by a letter
      {"\x80", L"\uFFFD"},                                    // a following byte alone
      {"g\xF5\x80\x80\x80z", L"g\uFFFD\uFFFD\uFFFD\uFFFDz"},  // no first byte, and three following bytes alone
  };
  for (const auto& [bytes, shown] : rows) {
    EXPECT_EQ(FromUtf8(bytes), shown);
  }
}

TEST(Utf8, AnUnpairedSurrogateIsWrittenAsWhatIsNoUtf8) {
  const std::wstring half(1, static_cast<wchar_t>(0xD800));
  EXPECT_EQ(ToUtf8(half + L"a"),
            "\xED\xA0\x80"
            "a");
  EXPECT_NE(FromUtf8(ToUtf8(half)), half);
}

// Halves of pairs at both ends of their ranges, and what is next to them; nothing of it is a pair.
TEST(Utf8, WhatIsNoPairIsWrittenOneByOne) {
  const std::map<std::vector<int>, std::string> rows{
      {{0xD800}, "\xED\xA0\x80"},
      {{0xDC00}, "\xED\xB0\x80"},
      {{0xD800, 0xD800}, "\xED\xA0\x80\xED\xA0\x80"},
      {{0xDBFF, 0xDBFF}, "\xED\xAF\xBF\xED\xAF\xBF"},
      {{0xDC00, 0xDC00}, "\xED\xB0\x80\xED\xB0\x80"},
      {{0xDFFF, 0xDC00}, "\xED\xBF\xBF\xED\xB0\x80"},
      {{0xD7FF, 0xDC00}, "\xED\x9F\xBF\xED\xB0\x80"},
      {{0xD800, 0xE000}, "\xED\xA0\x80\xEE\x80\x80"},
      {{0xD800, 0xDBFF}, "\xED\xA0\x80\xED\xAF\xBF"},
  };
  for (const auto& [units, bytes] : rows) {
    std::wstring text;
    for (const int unit : units) {
      text += static_cast<wchar_t>(unit);
    }
    EXPECT_EQ(ToUtf8(text), bytes);
  }
}

Utf8Check Checked(const std::vector<std::string>& pieces) {
  Utf8Check check;
  for (const std::string& piece : pieces) {
    check.Add(piece);
  }
  return check;
}

TEST(Utf8Check, KnowsUtf8HoweverItIsCut) {
  const std::string bytes = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z";
  for (std::size_t first = 0; first <= bytes.size(); ++first) {
    for (std::size_t second = first; second <= bytes.size(); ++second) {
      EXPECT_TRUE(Checked({bytes.substr(0, first), bytes.substr(first, second - first), bytes.substr(second)})
                      .IsUtf8BeyondAscii())
          << first << ' ' << second;
    }
  }
  std::vector<std::string> single;
  for (const char byte : bytes) {
    single.emplace_back(1, byte);
  }
  EXPECT_TRUE(Checked(single).IsUtf8BeyondAscii());
}

TEST(Utf8Check, AsciiIsNotBeyondAscii) {
  EXPECT_FALSE(Checked({"abc", "", "\r\n"}).IsUtf8BeyondAscii());
  EXPECT_FALSE(Checked({"abc"}).IsBroken());
  EXPECT_FALSE(Checked({}).IsUtf8BeyondAscii());
}

TEST(Utf8Check, OneWrongByteIsEnough) {
  for (const std::string bad : {"\xE9", "\xFF", "\xC0\xAF", "\xED\xA0\x80", "\xE2\x41\x41\x41", "\xF5\x80\x80\x80"}) {
    for (std::size_t cut = 0; cut <= bad.size(); ++cut) {
      const Utf8Check check = Checked({"\xC3\xA9" + bad.substr(0, cut), bad.substr(cut) + " and more"});
      EXPECT_TRUE(check.IsBroken()) << cut;
      EXPECT_FALSE(check.IsUtf8BeyondAscii());
    }
  }
}

TEST(Utf8Check, ACharacterThatIsCutOffAtTheEndIsWrong) {
  EXPECT_FALSE(Checked({"\xC3\xA9\xE2\x82"}).IsUtf8BeyondAscii());
  EXPECT_FALSE(Checked({"Caf\xE9"}).IsUtf8BeyondAscii());
}

}  // namespace
}  // namespace folivant::platform
