#include "platform/Locale.h"

#include <gtest/gtest.h>

namespace folivant::platform {
namespace {

// The tests run on English (United States) systems.
TEST(Locale, KnowsItsSeparators) {
  EXPECT_EQ(Locale().ThousandsSeparator, L",");
  EXPECT_EQ(Locale().DecimalSeparator, L".");
  EXPECT_EQ(Locale().DateSeparator, L"/");
}

TEST(FormatShortDate, PutsTheMonthFirst) {
  EXPECT_EQ(FormatShortDate(2024, 2, 29), L"2/29/2024");
  EXPECT_EQ(FormatShortDate(1999, 12, 31), L"12/31/1999");
}

}  // namespace
}  // namespace folivant::platform
