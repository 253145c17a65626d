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

/// Shifts a file time (100 ns since 1601, UTC) by today's offset of the local zone, whatever the date: the rule of
/// FileTimeToLocalFileTime. A result below zero becomes zero.
std::uint64_t ToLocalFileTime(std::uint64_t utc);

/// The multimedia timer: milliseconds since some start, wrapping at 32 bits.
std::uint32_t TimerMilliseconds();
struct TimerPeriods {
  std::uint32_t Minimum = 0;  ///< milliseconds
  std::uint32_t Maximum = 0;  ///< milliseconds
};
TimerPeriods TimerCapabilities();

}  // namespace folivant::platform
