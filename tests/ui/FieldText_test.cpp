#include "ui/FieldText.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

TEST(FieldName, IsTheCaptionWithoutItsMarks) {
  EXPECT_EQ(FieldName(L"&Size:"), L"Size");
  EXPECT_EQ(FieldName(L"Max. subdirectory &level:"), L"Max. subdirectory level");
  EXPECT_EQ(FieldName(L"Date format :"), L"Date format");
  EXPECT_EQ(FieldName(L"&Taille\u00A0:"), L"Taille");
  EXPECT_EQ(FieldName(L":"), L"");
}

}  // namespace
}  // namespace folivant
