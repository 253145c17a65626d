#include "app/win32/PositionOnScreen.h"

#include "app/WindowPosition.h"
#include "platform/Store.h"

namespace folivant {

void RestorePosition(HWND window) {
  const auto position = ParseWindowPosition(platform::StoreSection(kPositionSection).Read(kPositionKey).value_or(L""));
  RECT frame{};
  GetWindowRect(window, &frame);
  if (!position) {
    return;
  }
  OffsetRect(&frame, position->Left - frame.left, position->Top - frame.top);
  const RECT title{frame.left, frame.top, frame.right, frame.top + GetSystemMetrics(SM_CYCAPTION)};
  if (MonitorFromRect(&title, MONITOR_DEFAULTTONULL) != nullptr) {
    SetWindowPos(window, nullptr, frame.left, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void SavePosition(HWND window) {
  RECT frame{};
  if (IsIconic(window) == FALSE && GetWindowRect(window, &frame) != FALSE) {
    platform::WriteStore(kPositionSection, kPositionKey, WindowPositionText({frame.left, frame.top}));
  }
}

}  // namespace folivant
