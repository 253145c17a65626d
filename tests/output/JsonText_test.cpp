#include "output/JsonText.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

std::string Json(std::wstring_view text) {
  std::string out;
  AppendJsonString(text, out);
  return out;
}

TEST(JsonText, PlainTextStandsInQuotes) {
  EXPECT_EQ(Json(L""), "\"\"");
  EXPECT_EQ(Json(L"a b/c.txt"), "\"a b/c.txt\"");
}

TEST(JsonText, QuotesAndBackslashesAreEscaped) {
  EXPECT_EQ(Json(L"C:\\a\"b\""), "\"C:\\\\a\\\"b\\\"\"");
}

TEST(JsonText, ControlCharactersAreEscaped) {
  EXPECT_EQ(Json(std::wstring_view(L"\0\x1F\n\t\x7F", 5)), "\"\\u0000\\u001F\\u000A\\u0009\\u007F\"");
}

TEST(JsonText, OtherCharactersAreUtf8) {
  EXPECT_EQ(Json(L"\u00E4\u20AC\U0001F600z"), "\"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z\"");
}

TEST(JsonText, HalvesOfSurrogatePairsThatStandAloneAreEscaped) {
  EXPECT_EQ(Json(L"a\xD800z"), "\"a\\uD800z\"");
  EXPECT_EQ(Json(L"\xDC00"), "\"\\uDC00\"");
  EXPECT_EQ(Json(L"\u00E4\xDFFF\u00E4"), "\"\xC3\xA4\\uDFFF\xC3\xA4\"");
}

TEST(JsonText, LongTextsAreTakenInPiecesThatLoseNothing) {
  for (const std::size_t length : {509U, 510U, 511U, 512U, 513U, 1'024U, 3'000U}) {
    const std::wstring text = std::wstring(length, L'a') + L"\"\\\n\u00E4" + std::wstring(length, L'b');
    EXPECT_EQ(Json(text), '"' + std::string(length, 'a') + "\\\"\\\\\\u000A\xC3\xA4" + std::string(length, 'b') + '"');
  }
}

}  // namespace
}  // namespace folivant
