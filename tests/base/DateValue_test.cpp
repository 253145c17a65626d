#include "base/DateValue.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

bool SameTime(const platform::CalendarTime& a, const platform::CalendarTime& b) {
  return a.Year == b.Year && a.Month == b.Month && a.Day == b.Day && a.Hour == b.Hour && a.Minute == b.Minute &&
         a.Second == b.Second;
}

TEST(DateValueTest, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(ToDateValue({1899, 12, 30}), 0);
  EXPECT_EQ(ToDateValue({1899, 12, 31}), 1);
  EXPECT_EQ(ToDateValue({1900, 3, 1}), 61);
  EXPECT_EQ(ToDateValue({2000, 1, 1}), 36'526);
  EXPECT_EQ(ToDateValue({1980, 1, 1}), 29'221);
  EXPECT_EQ(ToDateValue({1899, 12, 29}), -1);
}

TEST(DateValueTest, TheTimeOfDayIsTheFraction) {
  EXPECT_EQ(ToDateValue({2000, 1, 1, 12, 0, 0}), 36'526.5);
  EXPECT_EQ(ToDateValue({2000, 1, 1, 6, 0, 0}), 36'526.25);
  EXPECT_DOUBLE_EQ(ToDateValue({2000, 1, 1, 0, 0, 1}), 36'526 + 1 / 86'400.0);
}

TEST(DateValueTest, ADayOutOfItsMonthIsCarriedOver) {
  EXPECT_EQ(ToDateValue({2001, 2, 29}), ToDateValue({2001, 3, 1}));
  EXPECT_EQ(ToDateValue({2001, 3, 0}), ToDateValue({2001, 2, 28}));
}

TEST(DateValueTest, EverySecondSurvivesTheWayThereAndBack) {
  const platform::CalendarTime times[] = {{1899, 12, 30, 0, 0, 0},    {1980, 1, 1, 0, 0, 1},   {1999, 9, 30, 10, 15, 0},
                                          {2000, 2, 29, 23, 59, 59},  {2039, 12, 31, 0, 0, 0}, {1700, 5, 6, 7, 8, 9},
                                          {1899, 12, 29, 23, 59, 59}, {1899, 12, 29, 0, 0, 0}, {1899, 12, 29, 0, 0, 1}};
  for (const platform::CalendarTime& time : times) {
    EXPECT_TRUE(SameTime(ToCalendarTime(ToDateValue(time)), time)) << time.Year;
  }
}

TEST(DateValueTest, ADayAndItsSecondsAreACalendarTime) {
  EXPECT_TRUE(SameTime(CalendarTimeOn(0, 0), {1899, 12, 30, 0, 0, 0}));
  EXPECT_TRUE(SameTime(CalendarTimeOn(36'526, 3'723), {2000, 1, 1, 1, 2, 3}));
  EXPECT_TRUE(SameTime(CalendarTimeOn(-1, 86'399), {1899, 12, 29, 23, 59, 59}));
}

TEST(DateValueTest, RoundsToTheNearestSecond) {
  const double second = 1 / 86'400.0;
  EXPECT_TRUE(SameTime(ToCalendarTime(36'526 + 0.6 * second), {2000, 1, 1, 0, 0, 1}));
  EXPECT_TRUE(SameTime(ToCalendarTime(36'526 - 0.4 * second), {2000, 1, 1, 0, 0, 0}));
}

}  // namespace
}  // namespace folivant
