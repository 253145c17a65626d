#include "app/WindowPosition.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(WindowPosition, ComesBackFromItsText) {
  EXPECT_EQ(WindowPositionText({120, -40}), L"120,-40");
  EXPECT_EQ(ParseWindowPosition(L"120,-40"), (WindowPosition{120, -40}));
}

TEST(WindowPosition, IsNothingFromAnyOtherText) {
  for (const wchar_t* text :
       {L"", L",", L"1", L"1,", L",1", L"1,2,3", L"a,b", L"1;2", L" 1,2", L"99999999999,1", L"\x0131,2"}) {
    EXPECT_EQ(ParseWindowPosition(text), std::nullopt) << testing::PrintToString(std::wstring(text));
  }
}

}  // namespace
}  // namespace folivant
