#include "platform/Clock.h"

#include "platform/win32/Win32.h"

#include <mmsystem.h>

namespace folivant::platform {
namespace {

/// Today's difference between local time and UTC, as FileTimeToLocalFileTime applies it to every date.
std::int64_t LocalOffset() {
  constexpr std::uint64_t kSomeTime = 125'000'000'000'000'000;  // far from both ends of the range
  const FILETIME utc{static_cast<DWORD>(kSomeTime), static_cast<DWORD>(kSomeTime >> 32)};
  FILETIME local;
  FileTimeToLocalFileTime(&utc, &local);
  return static_cast<std::int64_t>((std::uint64_t{local.dwHighDateTime} << 32 | local.dwLowDateTime) - kSomeTime);
}

}  // namespace

CalendarTime Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::uint64_t ToLocalFileTime(std::uint64_t utc) {
  static const std::int64_t offset = LocalOffset();
  const std::int64_t local = static_cast<std::int64_t>(utc) + offset;
  return local < 0 ? 0 : static_cast<std::uint64_t>(local);
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
