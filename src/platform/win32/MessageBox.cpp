#include "platform/MessageBox.h"

#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

UINT StyleOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Exclamation:
      return MB_ICONEXCLAMATION;
    case BoxIcon::Question:
      return MB_ICONQUESTION;
    case BoxIcon::Information:
      break;
  }
  return MB_ICONINFORMATION;
}

UINT StyleOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok:
      return MB_OK;
    case BoxButtons::YesNo:
      return MB_YESNO;
    case BoxButtons::YesNoCancel:
      break;
  }
  return MB_YESNOCANCEL;
}

/// The window that a message belongs to: the active one, or the foremost that takes input while another program is in
/// front. Null when the program has none.
HWND MessageOwner() {
  HWND owner = GetActiveWindow();
  const auto take = [](HWND window, LPARAM result) -> BOOL {
    const bool fits = IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0 &&
                      (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
    if (fits) {
      *reinterpret_cast<HWND*>(result) = window;
    }
    return fits ? FALSE : TRUE;
  };
  if (owner == nullptr) {
    EnumThreadWindows(GetCurrentThreadId(), take, reinterpret_cast<LPARAM>(&owner));
  }
  return owner;
}

}  // namespace

BoxAnswer ShowMessage(const std::wstring& text, BoxIcon icon, BoxButtons buttons, BoxDefault preset) {
  const HWND owner = MessageOwner();
  const UINT modality = owner == nullptr ? MB_TASKMODAL | MB_SETFOREGROUND : 0;
  const UINT second = preset == BoxDefault::Second ? MB_DEFBUTTON2 : 0;
  switch (MessageBoxW(owner, text.c_str(), L"Folivant", StyleOf(icon) | StyleOf(buttons) | second | modality)) {
    case IDYES:
      return BoxAnswer::Yes;
    case IDNO:
      return BoxAnswer::No;
    case IDOK:
      return BoxAnswer::Ok;
    default:
      return BoxAnswer::Cancel;
  }
}

}  // namespace folivant::platform
