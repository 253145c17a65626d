#include "base/DateValue.h"

#include <chrono>
#include <cmath>

namespace folivant {
namespace {

constexpr std::int64_t kSecondsPerDay = std::int64_t{24} * 60 * 60;
constexpr std::chrono::sys_days kDayZero = std::chrono::year{1899} / 12 / 30;

}  // namespace

platform::CalendarTime CalendarTimeOn(std::int64_t days, int seconds) {
  const std::chrono::year_month_day day(kDayZero + std::chrono::days(days));
  return {static_cast<int>(day.year()),
          static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day())),
          seconds / 3600,
          seconds / 60 % 60,
          seconds % 60};
}

DateValue ToDateValue(const platform::CalendarTime& time) {
  // The first of the month carries the day over where it lies outside its month.
  const std::chrono::sys_days month = std::chrono::year{time.Year} / time.Month / 1;
  const std::int64_t days = (month - kDayZero).count() + time.Day - 1;
  const double seconds = time.Hour * 3600.0 + time.Minute * 60.0 + time.Second;
  return static_cast<double>(days) + seconds / static_cast<double>(kSecondsPerDay);
}

platform::CalendarTime ToCalendarTime(DateValue date) {
  const std::int64_t seconds = std::llround(date * static_cast<double>(kSecondsPerDay));
  const std::int64_t days =
      seconds >= 0 ? seconds / kSecondsPerDay : -((-seconds + kSecondsPerDay - 1) / kSecondsPerDay);
  return CalendarTimeOn(days, static_cast<int>(seconds - days * kSecondsPerDay));
}

}  // namespace folivant
