// The dialogs in which the user says which filter file is meant. They open on the one that was used last.
#pragma once

#include <optional>
#include <string>

#include "platform/win32/Win32.h"

namespace folivant {

// Nothing when the user cancels.
std::optional<std::wstring> AskForFilterFileToLoad(HWND owner);
/// Asks before a file is overwritten.
std::optional<std::wstring> AskForFilterFileToSave(HWND owner);

}  // namespace folivant
