// Dates of entries.
#pragma once

#include <cstdint>

#include "base/DateValue.h"

namespace folivant {

/// Local date and time of an entry's last write, seconds precision. The converted time is written back into `fileTime`,
/// so that each call shifts the same record by `localOffset`, that of the run, once more. Listings depend on it: the
/// order of calls (date filter twice, date text, date sort key) decides what a listing shows.
DateValue FileDateOf(std::uint64_t& fileTime, std::int64_t localOffset);
/// The same conversion without the detour over a day count, for texts.
platform::CalendarTime FileTimeOf(std::uint64_t& fileTime, std::int64_t localOffset);
/// The calendar fields of a file time that is local already.
platform::CalendarTime CalendarTimeOf(std::uint64_t localFileTime);

}  // namespace folivant
