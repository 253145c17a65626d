// Small text, path and number helpers. Paths have "\" as separator; comparisons are exact.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Currency.h"

namespace folivant {

/// Cut before the first NUL, blanks trimmed at both ends.
std::wstring StripNulls(std::wstring_view text);
std::wstring Trim(std::wstring_view text);  ///< blanks (U+0020) only
std::wstring AddBackslash(std::wstring_view text);
/// Every "/" made a "\". For paths as people write them: the system takes both for a separator, so a name with a "/"
/// inside would lead to another place than the one that it is listed under.
std::wstring WithBackslashes(std::wstring_view path);
/// A whole number with the user's thousands separator between groups of three ("#,##0").
std::wstring FormatGrouped(std::int64_t number);
void AppendGrouped(std::int64_t number, std::wstring& out);

/// A size in the unit that listings show it in.
struct ScaledSize {
  std::int64_t Number = 0;
  std::size_t Unit = 0;  ///< 0 bytes to 4 terabytes
};
inline constexpr std::size_t kSizeUnits = 5;
/// Divides by 1024, dropping fractions, while the number is 10,000 or more, at most four times. The threshold is not
/// 1024, so that small files keep their exact size.
ScaledSize ScaleSize(Currency bytes);
/// A size with fixed unit names, for file lists; FormatSize (ui/ValueText.h) takes them from the language.
std::wstring FormatSizeFixedUnits(Currency bytes);
/// Replaces every occurrence; a replacement is not searched again. An empty search text changes nothing.
std::wstring ReplaceAll(std::wstring_view text, std::wstring_view search, std::wstring_view replacement);
/// One-based position of the last occurrence, 0 when absent. 16 bits: for texts of up to 32,767 characters.
/// Nothing calls it; it completes the set.
std::int16_t LastPosition(std::wstring_view text, std::wstring_view search);
/// After the last "."; a name without one is returned whole: extensions are sorted by it.
std::wstring GetExtension(std::wstring_view path);
/// After the last "\".
std::wstring GetFileName(std::wstring_view path);
/// Before the last "\"; empty when there is none.
std::wstring GetFolder(std::wstring_view path);
/// `text`, `count` times. Nothing calls it; it completes the set.
std::wstring RepeatText(std::int16_t count, std::wstring_view text);
/// False for hidden and system files and for directories: "/f" takes none of these.
bool FileExists(std::wstring_view path);

template <class Value>
constexpr Value MinValue(Value a, Value b) {
  return b < a ? b : a;
}
template <class Value>
constexpr Value MaxValue(Value a, Value b) {
  return a < b ? b : a;
}
template <class Value>
constexpr Value Clamp(Value value, Value low, Value high) {
  return MinValue(MaxValue(value, low), high);
}
/// The remainder in 0 to b - 1, for positive b. Nothing calls it; it completes the set.
std::int32_t PositiveMod(std::int32_t a, std::int32_t b);

enum class Rounding { Down = 0, Up = 1, Nearest = 2 };
/// The nearest multiple of `step` in the given direction; "up" adds 0.99999 of a step, so that a value a hair above a
/// multiple stays there.
double RoundToStep(double value, double step, Rounding mode);

}  // namespace folivant
