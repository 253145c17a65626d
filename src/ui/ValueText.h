// Sizes, dates and times as the texts that listings show, in the words of the language and the habits of the user's
// locale. The sentences made of them are in output/EntryFormatting.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "platform/Clock.h"
#include "ui/Messages.h"

namespace folivant {

/// The size text of listings: at most four digits, thousands grouped, one blank, two unit characters ("9,999 kb").
/// ScaleSize (base/mdlFileRoutines.h) chooses the unit. Beyond terabytes the number grows past four digits.
std::wstring FormatSize(Currency bytes, const Messages& texts);
/// The same appended to a text: what is done for every entry.
void AppendSize(Currency bytes, const Messages& texts, std::wstring& out);

/// The pattern of a "DateFormat" setting (0 "dd/mm/yy" to 5 "yyyy/mm/dd"); empty for another index: the previous
/// pattern stays in force then.
std::wstring_view DatePatternOf(std::int32_t dateFormat);
/// Hours and minutes of a day of 24 hours.
inline constexpr std::wstring_view kTimePattern = L"hh:nn";
/// `pattern` is made of "dd", "mm" (month), "yy", "yyyy", "hh", "nn" (minute) and other characters; "/" becomes the
/// user's date separator, everything else stands as it is.
std::wstring FormatDate(const platform::CalendarTime& time, std::wstring_view pattern);
void AppendDate(const platform::CalendarTime& time, std::wstring_view pattern, std::wstring& out);

}  // namespace folivant
