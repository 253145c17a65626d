#include "scan/ProgressBar.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(CreepingBar, SharesAddUpAndStopAt100) {
  CreepingBar bar;
  EXPECT_FLOAT_EQ(bar.Value(), 0);
  bar.SetProgress(33);
  bar.SetProgress(33);
  EXPECT_FLOAT_EQ(bar.Value(), 66);
  bar.SetProgress(33);
  bar.SetProgress(33);
  EXPECT_FLOAT_EQ(bar.Value(), 100);
}

// By hand: the steps are 1, 0.95, 0.9 ..., so n ticks reach n - 0.05 * n * (n - 1) / 2.
TEST(CreepingBar, CreepsSlowerAndSlower) {
  CreepingBar bar;
  EXPECT_TRUE(bar.Tick());
  EXPECT_NEAR(bar.Value(), 1.0, 1e-4);
  EXPECT_TRUE(bar.Tick());
  EXPECT_NEAR(bar.Value(), 1.95, 1e-4);
  EXPECT_TRUE(bar.Tick());
  EXPECT_NEAR(bar.Value(), 2.85, 1e-4);
  for (int tick = 4; tick <= 20; ++tick) {
    EXPECT_TRUE(bar.Tick());
  }
  EXPECT_NEAR(bar.Value(), 10.5, 1e-4) << "the highest point";
}

TEST(CreepingBar, SinksAgainAndStopsBelowTheProgress) {
  CreepingBar bar;
  for (int tick = 1; tick <= 22; ++tick) {
    EXPECT_TRUE(bar.Tick()) << tick;
  }
  EXPECT_NEAR(bar.Value(), 10.45, 1e-4) << "22 - 0.05 * 231";
  int ticks = 22;
  do {
    ++ticks;
  } while (bar.Tick());
  // 41 ticks reach 0 but for rounding, 42 ticks -1.05.
  EXPECT_GE(ticks, 41);
  EXPECT_LE(ticks, 42);
  EXPECT_FLOAT_EQ(bar.Value(), 0) << "never below the progress";
}

TEST(CreepingBar, GoesOnWhereTheCreepHasJustReachedTheProgress) {
  CreepingBar bar;
  bar.SetProgress(1);
  EXPECT_TRUE(bar.Tick()) << "one step, so both are 1";
  EXPECT_TRUE(bar.Tick());
  EXPECT_NEAR(bar.Value(), 1.95, 1e-4);
}

TEST(CreepingBar, TheFirstTickAfterTheWholeRunEndsTheCreep) {
  CreepingBar bar;
  bar.SetProgress(100);
  EXPECT_FALSE(bar.Tick());
  EXPECT_FLOAT_EQ(bar.Value(), 100);
}

TEST(CreepingBar, ShowsTheLargerOfCreepAndProgress) {
  CreepingBar bar;
  bar.Tick();
  bar.Tick();
  bar.SetProgress(1);
  EXPECT_NEAR(bar.Value(), 1.95, 1e-4);
  bar.SetProgress(4);
  EXPECT_FLOAT_EQ(bar.Value(), 5);
}

}  // namespace
}  // namespace folivant
