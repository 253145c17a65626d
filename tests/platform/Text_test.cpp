#include "platform/Text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace folivant::platform {
namespace {

/// Names of the kinds that decide about an order: case, accents, digits, punctuation, other alphabets, prefixes.
std::vector<std::wstring> TrickyNames() {
  std::vector<std::wstring> names{
      L"",       L"a",      L"A",      L"b",      L"B",      L"ab",     L"a b",    L"a.b",     L"a-b",    L"coop",
      L"co-op",  L"CO-OP",  L"con",    L"a_b",    L"'a",     L"a'",     L"-a",     L"1",       L"10",     L"2",
      L"a1",     L"a10",    L"a2",     L"\u00E4", L"\u00C4", L"ae",     L"\u00E9", L"e\u0301", L"\u00DF", L"ss",
      L"\u0436", L"\u0416", L"\u044F", L"\u0451", L"\u0435", L"z",      L"Z",      L"~",       L"!",      L"#",
      L"(a)",    L"[a]",    L"a,b",    L"a;b",    L"\u65E5", L"\u3042", L"\u30A2", L"\uFF21",  L" ",      L"  ",
      L" a",     L"a ",     L"-",      L"--",     L"'",      L"\u00AD"};
  const std::wstring letters =
      L"abAB12 .-_'()~!#,;zZ\u00E4\u00C4\u00E9\u0436\u0416\u044F\u00DF\u00E6\u0131\u0130\u00AD";
  std::mt19937 random(20240229);
  for (int i = 0; i < 1500; ++i) {
    std::wstring name;
    for (auto length = random() % 9; length > 0; --length) {
      name += letters[random() % letters.size()];
    }
    names.push_back(name);
  }
  return names;
}

int OrderOfKeys(const std::string& a, const std::string& b) {
  return a < b ? -1 : a == b ? 0 : 1;  // unsigned bytes, a shorter prefix first
}

std::string KeyOf(std::wstring_view text) {
  std::string key;
  AppendSortKey(text, key);
  return key;
}

TEST(Text, MapsCase) {
  EXPECT_EQ(ToLower(L"ReadMe-1.TXT"), L"readme-1.txt");
  EXPECT_EQ(ToUpper(L"ReadMe-1.txt"), L"README-1.TXT");
  EXPECT_EQ(ToLower(L"\u00C4\u041F\u03A9@[`{"), L"\u00E4\u043F\u03C9@[`{");
  EXPECT_EQ(ToUpper(L"\u00E4\u043F\u03C9@[`{"), L"\u00C4\u041F\u03A9@[`{");
  EXPECT_EQ(ToLower(L""), L"");
}

TEST(Text, NeverChangesTheLength) {
  EXPECT_EQ(ToUpper(L"stra\u00DFe").size(), 6U);
  EXPECT_EQ(ToUpper(L"\uFB01").size(), 1U);
  std::wstring half = L"aX";
  half[0] = static_cast<wchar_t>(0xD83D);
  EXPECT_EQ(ToLower(half), half.substr(0, 1) + L"x");
}

TEST(Text, MapsCaseInPlace) {
  std::wstring text = L"\u00C4Bc";
  LowerInto(text, text.data());
  EXPECT_EQ(text, L"\u00E4bc");
  UpperInto(text, text.data());
  EXPECT_EQ(text, L"\u00C4BC");
}

TEST(CompareText, IgnoresCase) {
  EXPECT_EQ(CompareText(L"readme.TXT", L"README.txt"), 0);
  EXPECT_EQ(CompareText(L"a", L"B"), -1);
  EXPECT_EQ(CompareText(L"b", L"A"), 1);
  EXPECT_EQ(CompareText(L"a", L"ab"), -1);
  EXPECT_EQ(CompareText(L"", L""), 0);
  EXPECT_EQ(CompareText(L"", L"a"), -1);
  EXPECT_EQ(CompareText(L"a", L""), 1);
  EXPECT_EQ(CompareText(L"\u0416", L"\u0436"), 0);
  EXPECT_EQ(CompareText(L"file2", L"file10"), 1);
}

TEST(AppendSortKey, OrdersExactlyAsCompareText) {
  const std::vector<std::wstring> names = TrickyNames();
  std::vector<std::string> keys;
  for (const std::wstring& name : names) {
    keys.push_back(KeyOf(name));
  }
  int wrong = 0;
  for (std::size_t a = 0; a < names.size(); ++a) {
    for (std::size_t b = a % 7; b < names.size(); b += 7) {
      const int expected = CompareText(names[a], names[b]);
      if (OrderOfKeys(keys[a], keys[b]) != expected && ++wrong <= 5) {
        ADD_FAILURE() << testing::PrintToString(names[a]) << " and " << testing::PrintToString(names[b])
                      << ": keys say " << OrderOfKeys(keys[a], keys[b]) << ", the comparison " << expected;
      }
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST(AppendSortKey, TakesDigitsAsNumbersWhenAsked) {
  const wchar_t* const inOrder[] = {L"a",    L"a001", L"A01b",  L"a1",     L"a1b",
                                    L"a02",  L"a2",   L"A9",    L"a10",    L"a99",
                                    L"a100", L"a999", L"a1000", L"a1000b", L"a10000000000000000000000",
                                    L"ab",   L"b1"};
  const auto key = [](const wchar_t* text) {
    std::string bytes;
    AppendSortKey(text, bytes, Digits::AsNumbers);
    return bytes;
  };
  for (std::size_t i = 1; i < std::size(inOrder); ++i) {
    EXPECT_EQ(OrderOfKeys(key(inOrder[i - 1]), key(inOrder[i])), -1)
        << testing::PrintToString(std::wstring(inOrder[i - 1])) << " "
        << testing::PrintToString(std::wstring(inOrder[i]));
  }
  EXPECT_EQ(key(L"File10"), key(L"fILE10"));
  EXPECT_EQ(OrderOfKeys(KeyOf(L"file2"), KeyOf(L"file10")), 1) << "only when asked";
}

TEST(AppendSortKey, AppendsAndTakesLongTexts) {
  std::string keys = "before";
  AppendSortKey(L"abc", keys);
  EXPECT_EQ(keys, "before" + KeyOf(L"ABC"));
  const std::wstring longText(5000, L'\u00E4');
  EXPECT_EQ(OrderOfKeys(KeyOf(longText), KeyOf(longText + L'a')), -1);
  EXPECT_EQ(OrderOfKeys(KeyOf(longText), KeyOf(longText)), 0);
}

TEST(Ansi, IsTheWesternCodePage) {
  EXPECT_EQ(ToAnsi(L"abc\u00E4\u00FF\u20AC\u0178\u2026"), "abc\xE4\xFF\x80\x9F\x85");
  EXPECT_EQ(FromAnsi("abc\xE4\xFF\x80\x9F\x85"), L"abc\u00E4\u00FF\u20AC\u0178\u2026");
  EXPECT_EQ(ToAnsi(L"\u65E5\u042F!"),
            "?"
            "?!");
  EXPECT_EQ(ToAnsi(L""), "");
  EXPECT_EQ(FromAnsi(""), L"");
}

TEST(Ansi, GoesThereAndBackForEveryByte) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) {
    bytes += static_cast<char>(i);
  }
  EXPECT_EQ(ToAnsi(FromAnsi(bytes)), bytes);
}

TEST(Ansi, WritesTwoMarksForASurrogatePair) {
  EXPECT_EQ(ToAnsi(L"a\U0001F600b"), "a??b");
}

TEST(Ansi, Appends) {
  std::string bytes = "x";
  AppendAnsi(L"\u00E4", bytes);
  AppendAnsi(L"", bytes);
  AppendAnsi(L"yz", bytes);
  EXPECT_EQ(bytes, "x\xE4yz");
}

TEST(Utf16, IsLittleEndian) {
  EXPECT_EQ(ToUtf16(L"a\u20AC"), std::string("a\0\xAC\x20", 4));
  EXPECT_EQ(FromUtf16(std::string_view("a\0\xAC\x20", 4)), L"a\u20AC");
  EXPECT_EQ(ToUtf16(L"\U0001F600"), std::string("\x3D\xD8\x00\xDE", 4));
  EXPECT_EQ(FromUtf16(std::string_view("\x3D\xD8\x00\xDE", 4)), L"\U0001F600");
}

TEST(Utf16, IgnoresAnOddByteAtTheEnd) {
  EXPECT_EQ(FromUtf16(std::string_view("a\0b", 3)), L"a");
}

TEST(Utf16, KeepsUnpairedSurrogates) {
  const std::string halves(
      "\x3D\xD8"
      "a\0"
      "\x00\xDE",
      6);
  EXPECT_EQ(ToUtf16(FromUtf16(halves)), halves);
}

}  // namespace
}  // namespace folivant::platform
