#include "scan/CStopWatch.h"

#include <gtest/gtest.h>

#include "fakes/FakePlatform.h"

namespace folivant {
namespace {

using fakes::Fake;

TEST(CStopWatchTest, RunsFromItsMaking) {
  Fake().TimerMilliseconds = 1'000;
  const CStopWatch watch;
  EXPECT_EQ(watch.Elapsed(), 0U);
  Fake().TimerMilliseconds = 1'250;
  EXPECT_EQ(watch.Elapsed(), 250U);
}

TEST(CStopWatchTest, ResetStartsAgain) {
  Fake().TimerMilliseconds = 1'000;
  CStopWatch watch;
  Fake().TimerMilliseconds = 5'000;
  watch.Reset();
  Fake().TimerMilliseconds = 5'001;
  EXPECT_EQ(watch.Elapsed(), 1U);
}

TEST(CStopWatchTest, StaysRightAcrossTheWrapOfTheTimer) {
  Fake().TimerMilliseconds = 0xFFFF'FFF0U;
  const CStopWatch watch;
  Fake().TimerMilliseconds = 0x10;
  EXPECT_EQ(watch.Elapsed(), 0x20U);
  Fake().TimerMilliseconds = 0xFFFF'FFEFU;  // the longest interval it can tell
  EXPECT_EQ(watch.Elapsed(), 0xFFFF'FFFFU);
}

TEST(CStopWatchTest, KnowsThePeriodsOfTheTimer) {
  Fake().TimerPeriods = {2, 1'000'000};
  const CStopWatch watch;
  EXPECT_EQ(watch.MinimumResolution(), 2U);
  EXPECT_EQ(watch.MaximumResolution(), 1'000'000U);
}

}  // namespace
}  // namespace folivant
