// Dates as day counts: days since 1899-12-30, the time of day as the fraction, local time.
#pragma once

#include <cstdint>

#include "platform/Clock.h"

namespace folivant {

using DateValue = double;

/// The calendar time that lies `seconds` seconds into the day `days` days after 1899-12-30; `seconds` is 0 to 86,399.
platform::CalendarTime CalendarTimeOn(std::int64_t days, int seconds);

/// Seconds precision; a day out of its month's range is carried over as the calendar does.
DateValue ToDateValue(const platform::CalendarTime& time);
/// Rounded to the nearest second.
platform::CalendarTime ToCalendarTime(DateValue date);

}  // namespace folivant
