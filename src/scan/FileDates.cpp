#include "scan/FileDates.h"

#include "platform/Clock.h"

namespace folivant {
namespace {

constexpr std::uint64_t kTicksPerSecond = 10'000'000;
constexpr std::uint64_t kSecondsPerDay = 24 * 60 * 60;
constexpr std::int64_t kFirstDay = -109'205;  ///< 1601-01-01, when file times begin, in days since 1899-12-30

}  // namespace

platform::CalendarTime CalendarTimeOf(std::uint64_t localFileTime) {
  const std::uint64_t seconds = localFileTime / kTicksPerSecond;
  return CalendarTimeOn(static_cast<std::int64_t>(seconds / kSecondsPerDay) + kFirstDay,
                        static_cast<int>(seconds % kSecondsPerDay));
}

platform::CalendarTime FileTimeOf(std::uint64_t& fileTime, std::int64_t localOffset) {
  fileTime = platform::ToLocalFileTime(fileTime, localOffset);
  return CalendarTimeOf(fileTime);
}

DateValue FileDateOf(std::uint64_t& fileTime, std::int64_t localOffset) {
  return ToDateValue(FileTimeOf(fileTime, localOffset));
}

}  // namespace folivant
