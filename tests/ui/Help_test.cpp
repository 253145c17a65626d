#include "ui/Help.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

TEST(ManualFile, IsTheOneOfTheLanguage) {
  fakes::Tree().Dir(L"C:\\P\\help").File(L"german.html").File(L"english.html");
  EXPECT_EQ(ManualFile(L"C:\\P", L"german.ini"), L"C:\\P\\help\\german.html");
}

TEST(ManualFile, TakesTheNameBeforeTheFirstDot) {
  fakes::Tree().Dir(L"C:\\P\\help").File(L"my.html");
  EXPECT_EQ(ManualFile(L"C:\\P", L"my.lang.ini"), L"C:\\P\\help\\my.html");
}

TEST(ManualFile, IsTheEnglishOneWhereTheLanguageHasNone) {
  fakes::Tree().Dir(L"C:\\P\\help").File(L"english.html");
  EXPECT_EQ(ManualFile(L"C:\\P", L"dutch.ini"), L"C:\\P\\help\\english.html");
}

}  // namespace
}  // namespace folivant
