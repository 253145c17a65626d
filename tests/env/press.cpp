// Presses a button of another program's window, as assistive software would: press TITLE CONTROL. Waits for a window of
// that title that shows the control, in one of its pages maybe; ends with 1 when none comes.
#include <cwchar>

#include "platform/win32/Win32.h"

namespace {

constexpr ULONGLONG kPatience = 20'000;  // milliseconds
constexpr DWORD kPause = 10;             // milliseconds

struct Search {
  int Control;
  HWND Found;
};

BOOL CALLBACK LookAt(HWND child, LPARAM data) {
  Search& search = *reinterpret_cast<Search*>(data);
  if (GetDlgCtrlID(child) == search.Control && IsWindowVisible(child) != 0) {
    search.Found = child;
  }
  return search.Found == nullptr ? TRUE : FALSE;
}

HWND FindControl(const wchar_t* title, int control) {
  Search search{control, nullptr};
  for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, L"#32770", title)) != nullptr;) {
    EnumChildWindows(window, LookAt, reinterpret_cast<LPARAM>(&search));
  }
  return search.Found;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 3) {
    return 2;
  }
  const int control = static_cast<int>(std::wcstol(arguments[2], nullptr, 10));
  const ULONGLONG end = GetTickCount64() + kPatience;
  HWND button = nullptr;
  while ((button = FindControl(arguments[1], control)) == nullptr) {
    if (GetTickCount64() > end) {
      return 1;
    }
    Sleep(kPause);
  }
  PostMessageW(button, BM_CLICK, 0, 0);  // not sent: it may open a window and come back much later
  return 0;
}
