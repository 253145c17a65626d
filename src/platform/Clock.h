// Time of day, file times and the millisecond timer.
#pragma once

#include <cstdint>

namespace folivant::platform {

struct CalendarTime {
  int Year = 0, Month = 0, Day = 0;  ///< month and day count from 1
  int Hour = 0, Minute = 0, Second = 0;
};
/// Local time now.
CalendarTime Now();
/// The same moment as a file time: 100 ns since 1601, UTC.
std::uint64_t UtcNow();

/// How far local time is ahead of UTC now, in units of file times (100 ns). Asked once in a run: all its times then
/// agree, and a change of the zone or of daylight saving shows in the next run.
std::int64_t LocalOffset();
/// Shifts a file time (100 ns since 1601, UTC) by the offset of now, whatever the date: the rule of
/// FileTimeToLocalFileTime. A result below zero becomes zero.
inline std::uint64_t ToLocalFileTime(std::uint64_t utc, std::int64_t localOffset) {
  const std::int64_t local = static_cast<std::int64_t>(utc) + localOffset;
  return local < 0 ? 0 : static_cast<std::uint64_t>(local);
}

/// The multimedia timer: milliseconds since some start, wrapping at 32 bits.
std::uint32_t TimerMilliseconds();
struct TimerPeriods {
  std::uint32_t Minimum = 0;  ///< milliseconds
  std::uint32_t Maximum = 0;  ///< milliseconds
};
TimerPeriods TimerCapabilities();

}  // namespace folivant::platform
