#include "platform/TextEncoding.h"

#include <gtest/gtest.h>

#include "platform/Text.h"

namespace folivant::platform {
namespace {

using enum TextEncoding;

/// Each encoding with the bytes of the text "Café Ж", or as much of it as it holds, worked out by hand.
const struct {
  TextEncoding encoding;
  std::string bytes;
  const wchar_t* text;
} kFiles[] = {
    {Ansi, "Caf\xE9", L"Caf\u00E9"},
    {Utf8, "Caf\xC3\xA9 \xD0\x96", L"Caf\u00E9 \u0416"},
    {MarkedUtf8,
     "\xEF\xBB\xBF"
     "Caf\xC3\xA9 \xD0\x96",
     L"Caf\u00E9 \u0416"},
    {Utf16,
     std::string("\xFF\xFE"
                 "C\0a\0f\0\xE9\0 \0\x16\x04",
                 14),
     L"Caf\u00E9 \u0416"},
    {Utf16BigEndian, std::string("\xFE\xFF\0C\0a\0f\0\xE9\0 \x04\x16", 14), L"Caf\u00E9 \u0416"},
};

TEST(TextEncoding, IsFoundAndKept) {
  for (const auto& file : kFiles) {
    const EncodedText read = ReadText(file.bytes);
    EXPECT_EQ(read.Text, file.text);
    EXPECT_EQ(read.Encoding, file.encoding);
    EXPECT_EQ(TextBytes(file.text, file.encoding), file.bytes);
  }
}

TEST(TextEncoding, PlainAsciiIsAnsi) {
  EXPECT_EQ(ReadText("plain").Encoding, Ansi);
  EXPECT_EQ(ReadText("").Encoding, Ansi);
  EXPECT_EQ(ReadText("").Text, L"");
}

TEST(TextEncoding, OneByteThatIsNoUtf8MakesItAnsi) {
  EXPECT_EQ(ReadText("\xC3\xA9 and \xE9").Text, L"\u00C3\u00A9 and \u00E9");
  EXPECT_EQ(ReadText("\xC3\xA9 cut off \xC3").Encoding, Ansi);
}

TEST(TextEncoding, AMarkAloneIsAnEmptyText) {
  for (const TextEncoding encoding : {MarkedUtf8, Utf16, Utf16BigEndian}) {
    const EncodedText read = ReadText(MarkOf(encoding));
    EXPECT_EQ(read.Text, L"");
    EXPECT_EQ(read.Encoding, encoding);
  }
}

TEST(TextEncoding, HalfAUnitAtTheEndIsDropped) {
  EXPECT_EQ(ReadText(std::string_view("\xFF\xFE"
                                      "a\0b",
                                      5))
                .Text,
            L"a");
  EXPECT_EQ(ReadText(std::string_view("\xFE\xFF\0a\0", 5)).Text, L"a");
}

TEST(TextEncoding, WhatItCannotHoldBecomesUtf16) {
  EXPECT_EQ(TextBytes(L"\u0416", Ansi), "\xFF\xFE\x16\x04");
  EXPECT_EQ(TextBytes(L"\U0001F600", Ansi), std::string("\xFF\xFE\x3D\xD8\x00\xDE", 6));
  const std::wstring half(1, static_cast<wchar_t>(0xD800));
  EXPECT_EQ(TextBytes(half, Utf8), std::string("\xFF\xFE\x00\xD8", 4));
  EXPECT_EQ(TextBytes(half, MarkedUtf8), std::string("\xFF\xFE\x00\xD8", 4));
}

// Written as they are, these bytes would be read as something else.
TEST(TextEncoding, WhatWouldBeTakenForAnotherEncodingBecomesUtf16) {
  for (const wchar_t* text : {L"\u00C3\u00A9", L"\u00FF\u00FE[x]", L"\u00FE\u00FF[x]", L"\u00EF\u00BB\u00BF[x]"}) {
    EXPECT_EQ(TextBytes(text, Ansi), "\xFF\xFE" + ToUtf16(text));
    EXPECT_EQ(ReadText(TextBytes(text, Ansi)).Text, text);
  }
  EXPECT_EQ(ReadText(TextBytes(L"\uFEFFx", Utf8)).Text, L"\uFEFFx");
}

TEST(TextEncoding, IsFoundInPiecesToo) {
  for (const auto& file : kFiles) {
    for (std::size_t cut = 0; cut <= file.bytes.size(); ++cut) {
      EncodingProbe probe;
      probe.Add(std::string_view(file.bytes).substr(0, cut));
      probe.Add(std::string_view(file.bytes).substr(cut));
      EXPECT_EQ(probe.Found(), file.encoding) << cut;
    }
  }
}

TEST(TextEncoding, IsSureAsSoonAsItCanBe) {
  for (const char* sure : {"\xEF\xBB\xBF",
                           "\xFF\xFE"
                           "a",
                           "\xFE\xFF"
                           "a",
                           "ab\xFF"
                           "cde"}) {
    for (std::size_t cut = 0; cut <= std::string_view(sure).size(); ++cut) {
      EncodingProbe probe;
      probe.Add(std::string_view(sure).substr(0, cut));
      probe.Add(std::string_view(sure).substr(cut));
      EXPECT_TRUE(probe.IsSure()) << cut;
    }
  }
  for (const char* open : {"", "\xFF", "\xFE", "\xEF\xBB", "abcdef", "\xC3\xA9\xC3\xA9", "abc\xE9"}) {
    EncodingProbe probe;
    probe.Add(open);
    EXPECT_FALSE(probe.IsSure());
  }
}

}  // namespace
}  // namespace folivant::platform
