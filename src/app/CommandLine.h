// The command line as a record and the grammar that fills it. Applying it is StartUp's work.
#pragma once

#include <cstdint>
#include <string>

namespace folivant {

/// Trims; if the text holds a double quote anywhere, removes one leading and one trailing quote and trims again.
std::wstring StripQuotes(const std::wstring& text);
/// The argument of the switch at the one-based `position`: everything after its two characters up to the next "/",
/// unquoted.
std::wstring GetSwitchArgument(const std::wstring& line, std::int32_t position);

}  // namespace folivant
