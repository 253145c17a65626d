// The current filter and sort order as a record.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/DateValue.h"

namespace folivant {

/// Codes as they are stored.
enum class OrderBy : std::int16_t { None = 0, Name = 1, DosName = 2, Size = 3, Date = 4, Extension = 5 };

/// Codes as they are stored, one digit each.
enum class AttributeChoice : std::int16_t { MustNotHave = 0, MustHave = 1, DoNotCare = 2 };

/// The order of FilterSettings::Attributes and of the stored digits.
enum AttributeIndex : std::size_t { kAttrArchive, kAttrReadOnly, kAttrHidden, kAttrSystem, kAttrDirectory };

/// The days that a date limit can be. The date picker shows no others: its calendar begins where Britain's became
/// today's, and Windows counts no year beyond.
inline constexpr platform::CalendarTime kFirstFilterDay{1752, 9, 14};
inline constexpr platform::CalendarTime kLastFilterDay{9999, 12, 31};

struct FilterSettings {
  bool NameOn = false;
  bool SizeOn = false;
  bool DateOn = false;
  bool AttrOn = false;
  std::wstring FilterName;      ///< the pattern list as typed
  bool SizeMin = true;          ///< "At least"; false is "At most"
  std::int32_t FilterSize = 0;  ///< kilobytes
  DateValue DateMin = 0;
  DateValue DateMax = 0;  ///< compared with date and time, on purpose: a pure day admits only its midnight
  std::array<AttributeChoice, 5> Attributes{};
  folivant::OrderBy OrderBy = folivant::OrderBy::Name;
  bool OrderAZ = true;
};

}  // namespace folivant
