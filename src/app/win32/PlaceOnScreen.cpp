#include "app/win32/PlaceOnScreen.h"

#include "app/WindowPlace.h"
#include "platform/Store.h"

namespace folivant {

void RestorePlace(HWND window) {
  const auto place = ParseWindowPlace(platform::StoreSection(kPlaceSection).Read(kPlaceKey).value_or(L""));
  RECT frame{};
  GetWindowRect(window, &frame);
  if (!place) {
    return;
  }
  OffsetRect(&frame, place->Left - frame.left, place->Top - frame.top);
  const RECT title{frame.left, frame.top, frame.right, frame.top + GetSystemMetrics(SM_CYCAPTION)};
  if (MonitorFromRect(&title, MONITOR_DEFAULTTONULL) != nullptr) {
    SetWindowPos(window, nullptr, frame.left, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

void SavePlace(HWND window) {
  RECT frame{};
  if (IsIconic(window) == FALSE && GetWindowRect(window, &frame) != FALSE) {
    platform::WriteStore(kPlaceSection, kPlaceKey, WindowPlaceText({frame.left, frame.top}));
  }
}

}  // namespace folivant
