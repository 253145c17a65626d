// The clipboard that all programs share, as far as this one uses it.
#pragma once

#include <string_view>

namespace folivant::platform {

/// Puts `text` on the clipboard in place of what is there, to stay when the program has ended. Throws RuntimeError
/// (UseClipboard) when another program holds the clipboard for longer than a moment, and std::bad_alloc when there is
/// no memory for so long a text; in both cases what is there stays.
void CopyToClipboard(std::wstring_view text);

}  // namespace folivant::platform
