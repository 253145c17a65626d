#include "platform/MessageBox.h"

#include "platform/Utf8.h"
#include "platform/win32/OwnedWindows.h"

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

std::optional<BoxAnswer> ShowBox(const std::wstring& text, BoxIcon icon, BoxButtons buttons, BoxDefault preset) {
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
    case IDCANCEL:
      return BoxAnswer::Cancel;
    default:
      return std::nullopt;
  }
}

bool CanShowWindows() {
  USEROBJECTFLAGS flags{};
  DWORD size = 0;
  if (GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags, &size) != FALSE &&
      (flags.dwFlags & WSF_VISIBLE) == 0) {
    return false;
  }
  const OwnedHelper probe(
      CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
  return probe.IsOpen();
}

void WriteStandardError(std::wstring_view text) {
  HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
  OwnedFile console;
  if (error == nullptr || error == INVALID_HANDLE_VALUE) {
    // A program with windows has no console of its own, but may have been started from one.
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) {
      return;
    }
    console = OwnedFile(CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr));
    error = console.Get();
  }
  const std::wstring line = std::wstring(text) + L"\r\n";
  DWORD written = 0;
  DWORD mode = 0;
  if (GetConsoleMode(error, &mode) != FALSE) {
    WriteConsoleW(error, line.c_str(), static_cast<DWORD>(line.size()), &written, nullptr);
  } else {
    const std::string bytes = ToUtf8(line);
    WriteFile(error, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);  // it may have been closed
  }
}

}  // namespace folivant::platform
