#include "platform/Clock.h"

#include <ctime>

namespace folivant::platform {
namespace {

tm LocalNow() {
  tzset();  // localtime_r alone would stay with the zone that it found first
  const time_t now = time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  return local;
}

}  // namespace

CalendarTime Now() {
  const tm now = LocalNow();
  return {now.tm_year + 1900, now.tm_mon + 1, now.tm_mday, now.tm_hour, now.tm_min, now.tm_sec};
}

std::uint64_t UtcNow() {
  constexpr std::uint64_t kSecondsTo1970 = 11'644'473'600;
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  return (static_cast<std::uint64_t>(now.tv_sec) + kSecondsTo1970) * 10'000'000 +
         static_cast<std::uint64_t>(now.tv_nsec) / 100;
}

std::int64_t LocalOffset() {
  return LocalNow().tm_gmtoff * std::int64_t{10'000'000};
}

std::uint32_t TimerMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1'000'000);
}

TimerPeriods TimerCapabilities() {
  return {1, 65535};  // what Windows says of its timer
}

}  // namespace folivant::platform
