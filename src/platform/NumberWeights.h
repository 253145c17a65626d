// Digits as numbers, for keys that are made of characters.
#pragma once

#include <string>
#include <string_view>

namespace folivant::platform {

/// Appends `text` so that character by character numbers order by their value: "2" before "10", and of equal numbers
/// the one with more zeros in front first, as Windows orders them. The result is good for nothing but comparing.
void AppendWithNumberWeights(std::wstring_view text, std::wstring& out);

}  // namespace folivant::platform
