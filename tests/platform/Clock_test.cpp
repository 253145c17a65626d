#include "platform/Clock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <thread>

namespace folivant::platform {
namespace {

/// The local zone's distance from UTC today, in seconds: what the test's environment says of the zone that it names,
/// and otherwise what the C library knows.
std::int64_t OffsetToday() {
  if (const char* const minutes = std::getenv("FOLIVANT_ZONE_MINUTES")) {
    return std::int64_t{60} * std::atoi(minutes);
  }
  const std::time_t now = std::time(nullptr);
  std::tm local = *std::localtime(&now);
  std::tm utc = *std::gmtime(&now);
  utc.tm_isdst = local.tm_isdst;
  return static_cast<std::int64_t>(std::difftime(std::mktime(&local), std::mktime(&utc)));
}

constexpr std::uint64_t kTicks = 10'000'000;

TEST(Clock, TellsLocalTime) {
  const std::time_t before = std::time(nullptr);
  const CalendarTime now = Now();
  std::tm shown{};
  shown.tm_year = now.Year - 1900;
  shown.tm_mon = now.Month - 1;
  shown.tm_mday = now.Day;
  shown.tm_hour = now.Hour;
  shown.tm_min = now.Minute;
  shown.tm_sec = now.Second;
  shown.tm_isdst = -1;
  EXPECT_NEAR(std::difftime(std::mktime(&shown), before), 0, 2);
}

TEST(Clock, TellsTheTimeInUtc) {
  constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;
  const std::int64_t seconds = static_cast<std::int64_t>(UtcNow() / kTicks) - kFrom1601To1970;
  EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(std::time(nullptr)), 2);
}

TEST(ToLocalFileTime, ShiftsEveryDateByTodaysOffset) {
  const std::int64_t shift = OffsetToday() * static_cast<std::int64_t>(kTicks);
  const std::uint64_t january = 12'600'000'000 * kTicks + 5;
  const std::uint64_t july = january + 181 * 86'400 * kTicks;
  const std::uint64_t long_ago = 1'000'000 * kTicks;
  for (const std::uint64_t utc : {january, july, long_ago}) {
    EXPECT_EQ(ToLocalFileTime(utc, LocalOffset()), static_cast<std::uint64_t>(static_cast<std::int64_t>(utc) + shift));
  }
}

TEST(ToLocalFileTime, NeverFallsBelowZero) {
  EXPECT_EQ(ToLocalFileTime(0, -1), 0U);
  EXPECT_EQ(ToLocalFileTime(5, -5), 0U);
  EXPECT_EQ(ToLocalFileTime(0, 7), 7U);
}

TEST(Timer, CountsMilliseconds) {
  const std::uint32_t before = TimerMilliseconds();
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  const std::uint32_t passed = TimerMilliseconds() - before;
  EXPECT_GE(passed, 45U);
  EXPECT_LT(passed, 5000U);
}

TEST(Timer, KnowsItsPeriods) {
  const TimerPeriods periods = TimerCapabilities();
  EXPECT_GE(periods.Minimum, 1U);
  EXPECT_GT(periods.Maximum, periods.Minimum);
}

}  // namespace
}  // namespace folivant::platform
