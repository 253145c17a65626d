#include "platform/ProfileText.h"

#include <gtest/gtest.h>

namespace folivant::platform {
namespace {

std::wstring Value(std::string_view bytes, const std::wstring& section, const std::wstring& key) {
  return ProfileText(bytes).Read(section, key).value_or(L"(none)");
}

std::string Written(std::string_view bytes, const std::wstring& section, const std::wstring& key,
                    const std::wstring& value) {
  ProfileText text(bytes);
  text.Write(section, key, value);
  return text.Bytes();
}

TEST(ProfileText, IgnoresCaseOfNames) {
  EXPECT_EQ(Value("[Messages]\r\nKey=v\r\n", L"MESSAGES", L"kEY"), L"v");
}

TEST(ProfileText, TakesTheFirstOfTwo) {
  EXPECT_EQ(Value("[S]\nk=1\nK=2\n", L"s", L"k"), L"1");
  EXPECT_EQ(Value("[S]\nk=1\n[T]\n[S]\nk=2\nj=3\n", L"s", L"k"), L"1");
  EXPECT_EQ(Value("[S]\nk=1\n[T]\n[S]\nk=2\nj=3\n", L"s", L"j"), L"(none)");
}

TEST(ProfileText, DropsBlanksAndOnePairOfQuotes) {
  EXPECT_EQ(Value("[S]\r\n \t k \t= a  b \t\r\n", L"S", L"k"), L"a  b");
  EXPECT_EQ(Value("[S]\nk=\" a \"\n", L"S", L"k"), L" a ");
  EXPECT_EQ(Value("[S]\nk=' a '\n", L"S", L"k"), L" a ");
  EXPECT_EQ(Value("[S]\nk=\"\"a\"\"\n", L"S", L"k"), L"\"a\"");
  EXPECT_EQ(Value("[S]\nk=\"a'\n", L"S", L"k"), L"\"a'");
  EXPECT_EQ(Value("[S]\nk=\"\n", L"S", L"k"), L"\"");
  EXPECT_EQ(Value("[S]\nk=\"\"\n", L"S", L"k"), L"");
}

TEST(ProfileText, SkipsCommentsAndLinesWithoutEquals) {
  EXPECT_EQ(Value("[S]\n;k=1\n ; k=2\nk\nk=3;4\n", L"S", L"k"), L"3;4");
  EXPECT_EQ(Value("[S]\n;k=1\n", L"S", L";k"), L"(none)");
  EXPECT_EQ(Value("[S]\nk;=1\n", L"S", L"k;"), L"1");
  EXPECT_EQ(Value("k=0\n[S]\nx=1\n", L"S", L"k"), L"(none)");
}

TEST(ProfileText, ASectionsNameGoesUpToTheLastBracket) {
  EXPECT_EQ(Value("[a]b]\nk=1\n", L"a]b", L"k"), L"1");
  EXPECT_EQ(Value(" \t[S]\nk=1\n", L"S", L"k"), L"1") << "and begins after blanks";
}

TEST(ProfileText, TakesEveryKindOfLineEnd) {
  EXPECT_EQ(Value("[S]\na=1\r\nb=2\nc=3", L"S", L"b"), L"2");
  EXPECT_EQ(Value("[S]\na=1\r\nb=2\nc=3", L"S", L"c"), L"3");
}

TEST(ProfileText, ReadsUtf16) {
  EXPECT_EQ(Value(std::string_view("\xFF\xFE[\0S\0]\0\n\0k\0=\0\xAC\x20", 16), L"S", L"k"), L"\u20AC");
  EXPECT_EQ(Value("[S]\nk=\x80\n", L"S", L"k"), L"\u20AC");
}

TEST(ProfileText, FindsNothingInAnEmptyText) {
  EXPECT_EQ(Value("", L"S", L"k"), L"(none)");
  EXPECT_FALSE(ProfileText("k=1\n").HasSection(L"S"));
  EXPECT_TRUE(ProfileText("[S]").HasSection(L"s"));
}

TEST(ProfileText, KeepsEveryOtherLine) {
  const std::string before = "; head\r\n\r\n[A]\r\nx = 1\r\nstray\r\n[S]\r\nk = old ; c\r\n\r\n[B]\r\ny=2\r\n";
  EXPECT_EQ(Written(before, L"s", L"K", L"new"),
            "; head\r\n\r\n[A]\r\nx = 1\r\nstray\r\n[S]\r\nk =new\r\n\r\n[B]\r\ny=2\r\n");
}

TEST(ProfileText, AddsAKeyAtTheEndOfItsSection) {
  EXPECT_EQ(Written("[S]\r\na=1\r\n\r\n[T]\r\n", L"S", L"b", L"2"), "[S]\r\na=1\r\nb=2\r\n\r\n[T]\r\n");
}

TEST(ProfileText, CompletesABareName) {
  EXPECT_EQ(Written("[S]\r\nK\r\na=1\r\n", L"S", L"k", L"2"), "[S]\r\nK=2\r\na=1\r\n");
}

TEST(ProfileText, AddsASectionAtTheEnd) {
  EXPECT_EQ(Written("[S]\r\na=1\r\n", L"T", L"b", L"2"), "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
  EXPECT_EQ(Written("", L"T", L"b", L"2"), "[T]\r\nb=2\r\n");
}

TEST(ProfileText, TakesAKeyOutAndKeepsEveryOtherLine) {
  ProfileText text("; head\r\n[A]\r\nk=1\r\n[S]\r\nj=2\r\nK = 3\r\n; note\r\nk=4\r\n");
  text.Remove(L"s", L"k");
  EXPECT_EQ(text.Read(L"S", L"k"), std::nullopt) << "neither the first nor the second";
  EXPECT_EQ(text.Bytes(), "; head\r\n[A]\r\nk=1\r\n[S]\r\nj=2\r\n; note\r\n");
  text.Remove(L"S", L"none");
  text.Remove(L"T", L"k");
  EXPECT_EQ(text.Bytes(), "; head\r\n[A]\r\nk=1\r\n[S]\r\nj=2\r\n; note\r\n");
}

TEST(ProfileText, ReadsWhatItWrote) {
  for (const wchar_t* value : {L"", L" ", L" a ", L"\"", L"\"a\"", L"'a'", L"''", L"a=b", L";a", L"[a]", L"\u00E4"}) {
    ProfileText text;
    text.Write(L"S", L"k", value);
    EXPECT_EQ(ProfileText(text.Bytes()).Read(L"S", L"k"), value);
  }
}

TEST(ProfileText, ReplacesAValueThatHoldsEquals) {
  EXPECT_EQ(Written("[S]\r\nk=a=b\r\n", L"S", L"k", L"c"), "[S]\r\nk=c\r\n");
}

TEST(ProfileText, CannotBeBrokenByALineBreak) {
  EXPECT_EQ(Written("", L"S", L"k", L"a\r\n[T]\r\nb=1"), "[S]\r\nk=a\r\n");
}

TEST(ProfileText, BecomesUtf16WhenAnsiCannotHoldIt) {
  ProfileText text("[S]\r\na=\xE4\r\n");
  text.Write(L"S", L"k", L"\u65E5");
  const std::string bytes = text.Bytes();
  EXPECT_EQ(bytes.substr(0, 4), std::string("\xFF\xFE[\0", 4));
  EXPECT_EQ(ProfileText(bytes).Read(L"S", L"k"), L"\u65E5");
  EXPECT_EQ(ProfileText(bytes).Read(L"S", L"a"), L"\u00E4");
}

TEST(ProfileText, ReadsEveryEncoding) {
  const std::string files[] = {
      "[S]\nk=Caf\xE9\n",
      "[S]\nk=Caf\xC3\xA9\n",
      "\xEF\xBB\xBF[S]\nk=Caf\xC3\xA9\n",
      std::string("\xFF\xFE[\0S\0]\0\n\0k\0=\0C\0a\0f\0\xE9\0", 22),
      std::string("\xFE\xFF\0[\0S\0]\0\n\0k\0=\0C\0a\0f\0\xE9", 22),
  };
  for (const std::string& file : files) {
    EXPECT_EQ(Value(file, L"S", L"k"), L"Caf\u00E9");
  }
}

TEST(ProfileText, KeepsItsEncoding) {
  EXPECT_EQ(Written("; \xE9\r\n[S]\r\n", L"S", L"k", L"\u00E4"), "; \xE9\r\n[S]\r\nk=\xE4\r\n");
  EXPECT_EQ(Written("; \xC3\xA9\r\n[S]\r\n", L"S", L"k", L"\u65E5"), "; \xC3\xA9\r\n[S]\r\nk=\xE6\x97\xA5\r\n");
  EXPECT_EQ(Written("\xEF\xBB\xBF[S]\r\n", L"S", L"k", L"\u65E5"), "\xEF\xBB\xBF[S]\r\nk=\xE6\x97\xA5\r\n");
  EXPECT_EQ(Written(std::string_view("\xFF\xFE[\0S\0]\0", 8), L"S", L"k", L"\u65E5"),
            std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE5\x65\r\0\n\0", 22));
  EXPECT_EQ(Written(std::string_view("\xFE\xFF\0[\0S\0]", 8), L"S", L"k", L"\u65E5"),
            std::string("\xFE\xFF\0[\0S\0]\0\r\0\n\0k\0=\x65\xE5\0\r\0\n", 22));
}

TEST(ProfileText, BecomesUtf16WhenItsBytesWouldBeReadAsUtf8) {
  const std::string bytes = Written("[S]\r\n", L"S", L"k", L"C:\\\u00C3\u00A9");
  EXPECT_TRUE(bytes.starts_with("\xFF\xFE"));
  EXPECT_EQ(Value(bytes, L"S", L"k"), L"C:\\\u00C3\u00A9");
}

}  // namespace
}  // namespace folivant::platform
