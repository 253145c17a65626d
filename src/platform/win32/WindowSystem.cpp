#include "platform/win32/WindowSystem.h"

#include <commctrl.h>
#include <ole2.h>

#include "platform/win32/OwnedWindows.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {

void PrepareWindows() {
  static const bool prepared = [] {
    INITCOMMONCONTROLSEX classes{};
    classes.dwSize = sizeof(classes);
    classes.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES | ICC_STANDARD_CLASSES;
    InitCommonControlsEx(&classes);
    OleInitialize(nullptr);
    return true;
  }();
  static_cast<void>(prepared);
}

FARPROC NewerFunction(const wchar_t* module, const char* name) {
  const HMODULE library = GetModuleHandleW(module);
  return library == nullptr ? nullptr : GetProcAddress(library, name);
}

int SystemDpi() {
  const WindowContext screen(nullptr);
  return GetDeviceCaps(screen.Get(), LOGPIXELSY);
}

int DpiOf(HWND window) {
  using GetDpi = UINT(WINAPI*)(HWND);
  using Plain = void (*)();
  static const auto getDpi =
      reinterpret_cast<GetDpi>(reinterpret_cast<Plain>(NewerFunction(L"user32.dll", "GetDpiForWindow")));
  const int dpi = getDpi != nullptr && window != nullptr ? static_cast<int>(getDpi(window)) : 0;
  return dpi > 0 ? dpi : SystemDpi();
}

void ThrowNoWindow() {
  throw SystemError(FailedAction::OpenWindow, {}, GetLastError());
}

}  // namespace folivant::platform
