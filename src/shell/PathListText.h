// The text of a path-list file: its encoding and its lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace folivant {

/// In any encoding of TextEncoding.h.
std::wstring PathListText(std::string_view bytes);
/// The lines without their ends (CR LF, CR or LF) and without blanks around them.
std::vector<std::wstring> LinesOf(std::wstring_view text);

}  // namespace folivant
