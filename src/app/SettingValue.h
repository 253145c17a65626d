// The text forms of setting values: flags are "True" and "False", groups of switches one digit each, numbers decimal,
// margins in the user's number format, dates "yyyy/mm/dd".
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "base/DateValue.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"

namespace folivant {

/// A day without its time.
struct DayMember {
  DateValue* Date;
};
/// Flags that are stored together, one digit each.
struct SwitchGroup {
  std::vector<bool*> Flags;
};

/// The member of a record that a setting fills. The record outlives it.
using SettingMember = std::variant<std::wstring*, bool*, std::int32_t*, std::int16_t*, float*, DayMember, SwitchGroup,
                                   std::array<AttributeChoice, 5>*, OrderBy*, ListingStyle*, OutputTarget*>;

/// False, and the member unchanged, when the text does not convert.
bool ReadMember(const SettingMember& member, const std::wstring& text);
std::wstring MemberText(const SettingMember& member);

}  // namespace folivant
