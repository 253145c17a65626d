// The orders of the main window to copy something, from its system menu and from keys: both arrive as WM_SYSCOMMAND.
#pragma once

#include <optional>

#include "platform/win32/Win32.h"
#include "ui/Messages.h"

namespace folivant {

/// Numbers of the system menu, which keeps the lowest four bits for itself.
enum class CopyOrder : WPARAM { Listing = 0x10, Path = 0x20 };

/// Puts the entry for the listing at the end of the window's system menu. The path has none: the window shows it.
void AddCopyEntry(HWND window, const Messages& texts);
/// What a key that has just been pressed orders: Ctrl+C the listing, Ctrl+Shift+C the path.
std::optional<CopyOrder> CopyOrderOfKey(WPARAM key);
/// What a message orders, from the menu or posted for a key.
std::optional<CopyOrder> CopyOrderOf(UINT message, WPARAM wParam);

}  // namespace folivant
