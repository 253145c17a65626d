// Letter case, the platform's text comparison, and the ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace folivant::platform {

/// Simple case mapping, one code unit to one code unit, so the length never changes.
std::wstring ToLower(std::wstring_view text);
std::wstring ToUpper(std::wstring_view text);
/// The same into a buffer of at least `text.size()` characters; `text` may be that buffer.
void LowerInto(std::wstring_view text, wchar_t* out);
void UpperInto(std::wstring_view text, wchar_t* out);

/// The platform's case-insensitive text comparison: -1, 0 or +1. On Windows CompareString with the user's locale,
/// ignoring case, kana type and width; in the host build lower-case code points.
int CompareText(std::wstring_view a, std::wstring_view b);
/// Whether "file10" comes before "file2", or after it.
enum class Digits { AsCharacters, AsNumbers };
/// Appends bytes that sort, as unsigned bytes and a shorter prefix first, exactly as CompareText orders the texts, but
/// for numbers where they are taken as such. Making a key once costs far less than comparing often.
void AppendSortKey(std::wstring_view text, std::string& keys, Digits digits = Digits::AsCharacters);

/// ANSI code page to text and back. What the code page lacks becomes the system's best fit or "?".
std::wstring FromAnsi(std::string_view bytes);
std::string ToAnsi(std::wstring_view text);
void AppendAnsi(std::wstring_view text, std::string& bytes);

/// UTF-16 little-endian bytes (without byte-order mark) to text and back; unpaired surrogates survive where the
/// platform's text can hold them.
std::wstring FromUtf16(std::string_view bytes);
std::string ToUtf16(std::wstring_view text);

}  // namespace folivant::platform
