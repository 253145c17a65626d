// The sizes of a dialog and its place on the screen.
#include <algorithm>

#include "platform/win32/Dialog.h"
#include "platform/win32/DialogFit.h"
#include "platform/win32/WindowSystem.h"

namespace folivant::platform {

int Dialog::Scaled(int length) const {
  return MulDiv(length, DpiOf(window_), USER_DEFAULT_SCREEN_DPI);
}

int Dialog::WidthOfText(const std::wstring& text) const {
  return WidthOfPlainText(window_, text);
}

void Dialog::FitToTexts() {
  GrowWindow(window_, FitChildren(window_));
}

void Dialog::Grow(int control, SIZE by) {
  const HWND parent = GetParent(Item(control));
  GrowChild(parent, Item(control), by);
  GrowWindow(parent, by);
}

void Dialog::GrowWindow(HWND window, SIZE by) {
  RECT frame{};
  GetWindowRect(window, &frame);
  SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left + by.cx, frame.bottom - frame.top + by.cy,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

SIZE Dialog::FitPageToTexts(HWND page) {
  const SIZE grown = FitChildren(page);
  RECT client{};
  GetClientRect(page, &client);
  return {client.right + grown.cx, client.bottom + grown.cy};
}

void Dialog::Centre() {
  RECT frame{};
  GetWindowRect(window_, &frame);
  const HWND owner = GetWindow(window_, GW_OWNER);
  MONITORINFO screen{};
  screen.cbSize = sizeof(screen);
  GetMonitorInfoW(MonitorFromWindow(owner != nullptr ? owner : window_, MONITOR_DEFAULTTONEAREST), &screen);
  RECT around = screen.rcWork;
  if (owner != nullptr && IsWindowVisible(owner)) {
    GetWindowRect(owner, &around);
  }
  const LONG width = frame.right - frame.left;
  const LONG height = frame.bottom - frame.top;
  const RECT& work = screen.rcWork;
  const LONG x = (around.left + around.right - width) / 2;
  const LONG y = (around.top + around.bottom - height) / 2;
  SetWindowPos(window_, nullptr, static_cast<int>(std::max(work.left, std::min(x, work.right - width))),
               static_cast<int>(std::max(work.top, std::min(y, work.bottom - height))), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace folivant::platform
