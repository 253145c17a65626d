// Numbers as texts, in the store, in filter files and in text boxes. There is one spelling for all of them: a sign,
// plain digits and a decimal mark, which is the user's own, a point or a comma, so that what was written in another
// country is read as it was meant. Numbers in listings are formatted elsewhere (base/mdlFileRoutines.h).
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace folivant {

/// Where a number stands. A stored one may come from a machine with other habits and is never grouped; in one that was
/// typed the user's thousands separator counts, but only before exactly three digits.
enum class NumberSource { Stored, Typed };

/// The whole numbers that a setting or a field takes, both ends included.
struct WholeRange {
  std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
  std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
  bool operator==(const WholeRange&) const = default;
};
/// All that fits into a type of at most 32 bits.
template <class Whole>
inline constexpr WholeRange kRangeOf{std::numeric_limits<Whole>::min(), std::numeric_limits<Whole>::max()};

/// The ends of a range as a message names them.
struct ValueLimits {
  std::wstring Lowest;
  std::wstring Highest;
  bool operator==(const ValueLimits&) const = default;
};

/// What reading came to: a number, none at all, or one outside the range.
template <class Number>
struct NumberRead {
  std::optional<Number> Value;
  bool OutOfRange = false;  ///< never together with a value
  bool operator==(const NumberRead&) const = default;
};

/// A whole number, with blanks around it. A fraction is rounded, halves to even; but where a mark that is not certainly
/// a decimal one stands before exactly three digits ("1.000"), the text could mean two numbers and is read as neither.
NumberRead<std::int32_t> ReadWhole(std::wstring_view text, NumberSource source, WholeRange range = {});
/// The whole number that a typed text begins with: "80 characters" is 80, and a text that begins with none is 0.
NumberRead<std::int32_t> ReadLeadingWhole(std::wstring_view text, WholeRange range = {});
/// A number with or without a fraction, with blanks around it; Fraction is float or double.
template <class Fraction>
NumberRead<Fraction> ReadFraction(std::wstring_view text, NumberSource source);

/// Digits with a sign or without, and nothing else.
std::optional<std::int32_t> ReadPlainWhole(std::wstring_view text);
/// Takes the digits off the beginning of `text`; nothing when there are none or too many.
std::optional<std::int32_t> TakeDigits(std::wstring_view& text);

/// Plain digits: "1000", "-2".
std::wstring WholeText(std::int32_t number);
/// The same with zeros before it: "0007".
std::wstring PaddedText(std::int32_t number, std::size_t width);
/// The shortest text that reads back as the same number, with the user's decimal separator: "20", "0,5".
std::wstring SingleText(float number);

ValueLimits LimitsAsStored(WholeRange range);
/// As the user types them: "-32,768".
ValueLimits LimitsAsTyped(WholeRange range);
/// Of the numbers with a fraction that fit into 32 bits.
ValueLimits SingleLimits();

}  // namespace folivant
