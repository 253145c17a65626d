#include "base/Lengths.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

TEST(LargestFitting, IsTheMostOfWhatFits) {
  for (std::size_t most = 0; most <= 9; ++most) {
    for (std::size_t limit = 0; limit <= 12; ++limit) {
      const auto fits = [&](std::size_t count) {
        EXPECT_LE(count, most) << "more is never asked for";
        return count <= limit;
      };
      EXPECT_EQ(LargestFitting(most, fits), limit < most ? limit : most);
    }
  }
}

TEST(LargestFitting, IsNothingWhereNothingFits) {
  EXPECT_EQ(LargestFitting(5, [](std::size_t) { return false; }), 0U);
}

TEST(IsShorter, LeavesOutWhatRoundingLeaves) {
  EXPECT_TRUE(IsShorter(99.9, 100));
  EXPECT_FALSE(IsShorter(99.995, 100));
  EXPECT_FALSE(IsShorter(100, 100));
  EXPECT_FALSE(IsLonger(100.005, 100));
  EXPECT_TRUE(IsLonger(100.1, 100));
}

}  // namespace
}  // namespace folivant
