#include "platform/Clock.h"

#include <ctime>

namespace folivant::platform {
namespace {

tm LocalNow() {
  const std::time_t now = std::time(nullptr);
  tm local{};
  localtime_r(&now, &local);
  return local;
}

}  // namespace

CalendarTime Now() {
  const tm local = LocalNow();
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::uint64_t ToLocalFileTime(std::uint64_t utc) {
  static const std::int64_t offset = std::int64_t{LocalNow().tm_gmtoff} * 10'000'000;
  const std::int64_t local = static_cast<std::int64_t>(utc) + offset;
  return local < 0 ? 0 : static_cast<std::uint64_t>(local);
}

std::uint32_t TimerMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint32_t>(now.tv_sec * 1000 + now.tv_nsec / 1'000'000);
}

TimerPeriods TimerCapabilities() {
  return {1, 1'000'000};
}

}  // namespace folivant::platform
