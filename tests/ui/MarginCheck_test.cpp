#include "ui/MarginCheck.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

constexpr Margins kMinimum{.Left = 5, .Top = 4.2F, .Right = 6, .Bottom = 7};

TEST(MarginsSuffice, AMarginEqualToItsMinimumPasses) {
  EXPECT_TRUE(MarginsSuffice(kMinimum, kMinimum));
  EXPECT_TRUE(MarginsSuffice({20, 15, 20, 20}, kMinimum));
}

TEST(MarginsSuffice, OneSmallMarginIsEnoughToFail) {
  EXPECT_FALSE(MarginsSuffice({4.99F, 15, 20, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 4.1F, 20, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 15, 5, 20}, kMinimum));
  EXPECT_FALSE(MarginsSuffice({20, 15, 20, 0}, kMinimum));
}

TEST(RaisedMargins, RoundsUpToAMillimetre) {
  EXPECT_EQ(RaisedMargins({0, 0, 0, 0}, kMinimum, false), (Margins{5, 5, 6, 7}));
}

TEST(RaisedMargins, RoundsUpToAHundredthOfAnInch) {
  const Margins minimum{.Left = 0.123F, .Top = 0.25F, .Right = 0.5F, .Bottom = 0.201F};
  EXPECT_EQ(RaisedMargins({0, 0, 0, 0}, minimum, true), (Margins{0.13F, 0.25F, 0.5F, 0.21F}));
}

TEST(RaisedMargins, LeavesMarginsThatSuffice) {
  EXPECT_EQ(RaisedMargins({20.3F, 0, 6, 7.7F}, kMinimum, false), (Margins{20.3F, 5, 6, 7.7F}));
  EXPECT_EQ(RaisedMargins(kMinimum, kMinimum, false), kMinimum) << "not even to a whole millimetre";
}

}  // namespace
}  // namespace folivant
