#include "base/Currency.h"

#include <gtest/gtest.h>

namespace folivant {
namespace {

constexpr std::int64_t kLargest = 922'337'203'685'477;  // 2 to the power 63 divided by 10,000, without its fraction

TEST(CurrencyTest, HoldsEveryWholeNumberUpToTheLimit) {
  EXPECT_EQ(Currency::FromWhole(0).Whole(), 0);
  EXPECT_EQ(Currency::FromWhole(0x1'2345'6789).Whole(), 0x1'2345'6789);
  EXPECT_EQ(Currency::FromWhole(kLargest).Whole(), kLargest);
  EXPECT_LT(Currency::FromWhole(kLargest), Currency::FromWhole(kLargest + 1)) << "the limit has a fraction";
}

TEST(CurrencyTest, WhatIsTooLargeBecomesTheLimit) {
  for (const std::uint64_t whole : {std::uint64_t{kLargest + 1}, std::uint64_t{1} << 63, ~std::uint64_t{0}}) {
    EXPECT_EQ(Currency::FromWhole(whole).Whole(), kLargest) << whole;
  }
}

TEST(CurrencyTest, SumsStopAtTheLimit) {
  Currency sum = Currency::FromWhole(kLargest - 1);
  sum += Currency::FromWhole(1);
  EXPECT_EQ(sum, Currency::FromWhole(kLargest));
  sum += Currency::FromWhole(1);
  EXPECT_EQ(sum.Whole(), kLargest);
  sum += sum;
  EXPECT_EQ(sum.Whole(), kLargest);
}

TEST(CurrencyTest, TheNextUnitDropsTheFraction) {
  EXPECT_EQ(Currency::FromWhole(1'023).NextUnit(), Currency());
  EXPECT_EQ(Currency::FromWhole(1'024).NextUnit(), Currency::FromWhole(1));
  EXPECT_EQ(Currency::FromWhole(2'047).NextUnit(), Currency::FromWhole(1));
}

}  // namespace
}  // namespace folivant
