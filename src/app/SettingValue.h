// The text forms of setting values: flags are "True" and "False", groups of switches one digit each, numbers decimal,
// margins in the user's number format (base/Numbers.h), dates "yyyy/mm/dd".
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/DateValue.h"
#include "base/Numbers.h"
#include "output/OutputKind.h"
#include "scan/FilterSettings.h"
#include "scan/ListingFormat.h"

namespace folivant {

/// A whole number that takes fewer values than fit into its type.
struct RangedMember {
  std::int32_t* Number;
  WholeRange Range;
  WholeRange ToldRange;  ///< as a message names it
};
/// A day of those that the filter takes, without its time.
struct DayMember {
  DateValue* Date;
};
/// Flags that are stored together, one digit each.
struct SwitchGroup {
  std::vector<bool*> Flags;
};

/// The member of a record that a setting fills. The record outlives it.
using SettingMember =
    std::variant<std::wstring*, bool*, std::int32_t*, std::int16_t*, float*, RangedMember, DayMember, SwitchGroup,
                 std::array<AttributeChoice, 5>*, OrderBy*, ListingStyle*, OutputTarget*>;

/// Why a text does not convert.
struct Refusal {
  std::optional<ValueLimits> Limits;  ///< when it is a number or a day, but outside what the setting takes
};

/// Nothing when the text converts; otherwise the member is unchanged.
std::optional<Refusal> ReadMember(const SettingMember& member, const std::wstring& text);
std::wstring MemberText(const SettingMember& member);

}  // namespace folivant
