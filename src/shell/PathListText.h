// The text of a path-list file: its encoding and its lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folivant {

/// UTF-16 little-endian or UTF-8 when the bytes begin with that byte-order mark, otherwise the ANSI code page.
std::wstring PathListText(std::string_view bytes);
/// The lines without their ends (CR LF, CR or LF) and without blanks around them.
std::vector<std::wstring> LinesOf(std::wstring_view text);

}  // namespace folivant
