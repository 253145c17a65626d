#include "scan/FileDates.h"

#include <chrono>

#include "platform/Clock.h"

namespace folivant {
namespace {

constexpr std::uint64_t kTicksPerSecond = 10'000'000;
constexpr std::uint64_t kSecondsPerDay = 24 * 60 * 60;
constexpr std::chrono::sys_days kFileTimeZero = std::chrono::year{1601} / 1 / 1;

}  // namespace

platform::CalendarTime CalendarTimeOf(std::uint64_t localFileTime) {
  const std::uint64_t seconds = localFileTime / kTicksPerSecond;
  const int rest = static_cast<int>(seconds % kSecondsPerDay);
  const std::chrono::year_month_day day(kFileTimeZero +
                                        std::chrono::days(static_cast<std::int64_t>(seconds / kSecondsPerDay)));
  return {static_cast<int>(day.year()),
          static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day())),
          rest / 3600,
          rest / 60 % 60,
          rest % 60};
}

platform::CalendarTime FileTimeOf(std::uint64_t& fileTime) {
  fileTime = platform::ToLocalFileTime(fileTime);
  return CalendarTimeOf(fileTime);
}

DateValue FileDateOf(std::uint64_t& fileTime) {
  return ToDateValue(FileTimeOf(fileTime));
}

}  // namespace folivant
