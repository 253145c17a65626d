#include "platform/Clock.h"

#include "platform/win32/Win32.h"

#include <mmsystem.h>

namespace folivant::platform {

CalendarTime Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::uint64_t UtcNow() {
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  return std::uint64_t{now.dwHighDateTime} << 32 | now.dwLowDateTime;
}

/// The difference that FileTimeToLocalFileTime makes: it is the same for every date.
std::int64_t LocalOffset() {
  constexpr std::uint64_t kSomeTime = 125'000'000'000'000'000;  // far from both ends of the range
  const FILETIME utc{static_cast<DWORD>(kSomeTime), static_cast<DWORD>(kSomeTime >> 32)};
  FILETIME local;
  FileTimeToLocalFileTime(&utc, &local);
  return static_cast<std::int64_t>((std::uint64_t{local.dwHighDateTime} << 32 | local.dwLowDateTime) - kSomeTime);
}

std::uint32_t TimerMilliseconds() {
  return timeGetTime();
}

TimerPeriods TimerCapabilities() {
  TIMECAPS capabilities{};
  timeGetDevCaps(&capabilities, sizeof capabilities);
  return {capabilities.wPeriodMin, capabilities.wPeriodMax};
}

}  // namespace folivant::platform
