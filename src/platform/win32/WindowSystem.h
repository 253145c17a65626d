// What windows need of the system once per process: its common controls, the resolution, functions that older versions
// lack.
#pragma once

#include "platform/win32/Win32.h"

namespace folivant::platform {

/// Common controls, OLE; once per process, before the first window.
void PrepareWindows();
/// A function of a newer Windows when it is there; nullptr before.
FARPROC NewerFunction(const wchar_t* module, const char* name);
/// Dots per inch of the main screen.
int SystemDpi();
/// Dots per inch of the screen that shows `window`.
int DpiOf(HWND window);

/// On the line after a window could not be made: throws RuntimeError (OpenWindow) with the system's last number.
[[noreturn]] void ThrowNoWindow();

}  // namespace folivant::platform
