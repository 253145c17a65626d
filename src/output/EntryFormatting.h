// The formatting rules that the scanner and all writers share: size texts, counts, dates, and the sentences at the end
// of a listing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"
#include "base/DateValue.h"
#include "platform/Files.h"
#include "scan/FilterSettings.h"
#include "scan/ScanTree.h"
#include "ui/Messages.h"

namespace folivant {

/// The size text of listings: at most four digits, thousands grouped, one blank, two unit characters ("9,999 kb").
/// ScaleSize (base/mdlFileRoutines.h) chooses the unit. Beyond terabytes the number grows past four digits.
std::wstring FormatSize(Currency bytes, const Messages& texts);
/// The same appended to a text: what the scanner uses for every entry.
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

/// "12 files, 3 directories, 1,204 kb"
std::wstring TotalsSentence(const RunTotals& totals, const Messages& texts);
/// "4,882 kb free of 19 Mb."
std::wstring FreeSpaceSentence(const platform::DiskSpace& space, const Messages& texts);

/// The filter in one line, for "%g", the XML `filter` element and the main window: "*.txt, >1000 kb, 9/25/1999 -
/// 9/30/1999". Attribute choices never appear, on purpose.
std::wstring FilterDescription(const FilterSettings& filter, const Messages& texts);

}  // namespace folivant
