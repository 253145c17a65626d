// The place of the main window on the screen, between two runs of the program.
#pragma once

#include "platform/win32/Win32.h"

namespace folivant {

/// Moves `window` to where it stood last, unless its title bar could not be reached with the mouse there.
void RestorePosition(HWND window);
/// Stores where it stands; a minimised window leaves what is stored. Throws RuntimeError (WriteSetting).
void SavePosition(HWND window);

}  // namespace folivant
