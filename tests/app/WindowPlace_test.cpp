#include "app/WindowPlace.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(WindowPlace, ComesBackFromItsText) {
  EXPECT_EQ(WindowPlaceText({120, -40}), L"120,-40");
  EXPECT_EQ(ParseWindowPlace(L"120,-40"), (WindowPlace{120, -40}));
}

TEST(WindowPlace, IsNothingFromAnyOtherText) {
  for (const wchar_t* text :
       {L"", L",", L"1", L"1,", L",1", L"1,2,3", L"a,b", L"1;2", L" 1,2", L"99999999999,1", L"\x0131,2"}) {
    EXPECT_EQ(ParseWindowPlace(text), std::nullopt) << testing::PrintToString(std::wstring(text));
  }
}

}  // namespace
}  // namespace folivant
