// Numbers as they are typed into text boxes, in the habits of the user's locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace folivant {

/// A whole number of 32 bits: blanks around it, a sign, thousands separators and a decimal fraction are allowed; a
/// fraction is rounded to the nearest whole number, halves to even. Nothing when the text is no number or too large.
std::optional<std::int32_t> ParseWholeNumber(std::wstring_view text);
/// A number with or without a fraction.
std::optional<float> ParseSingle(std::wstring_view text);
/// The whole number that the text begins with, halves to even; 0 when it begins with none, and the nearest limit when
/// it does not fit.
std::int32_t LeadingWholeNumber(std::wstring_view text);
/// At most seven digits, no zeros at the end: "20", "0.5".
std::wstring SingleText(float value);

/// A caption as the name of its field: without the mnemonic's "&" and without a colon and blanks at the end.
std::wstring FieldName(std::wstring_view caption);

}  // namespace folivant
