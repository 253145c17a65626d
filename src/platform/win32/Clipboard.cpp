// Another program may hold the clipboard for the moment in which it looks at it, as managers of clipboards do after
// each change: opening it is tried again for a while. The memory is filled before, so that the clipboard is held
// briefly and is not emptied in vain.
#include "platform/Clipboard.h"

#include <algorithm>
#include <new>

#include "platform/win32/OwnedWindows.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

constexpr int kAttempts = 20;
constexpr DWORD kPause = 25;  // milliseconds

OwnedGlobal InMemory(std::wstring_view text) {
  OwnedGlobal memory(GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(wchar_t)));
  if (!memory.IsOpen()) {
    throw std::bad_alloc();
  }
  const LockedMemory locked(memory.Get());
  if (locked.Address() == nullptr) {
    throw std::bad_alloc();
  }
  auto* const target = static_cast<wchar_t*>(locked.Address());
  *std::copy(text.begin(), text.end(), target) = L'\0';
  return memory;
}

RuntimeError Refused(DWORD code) {
  return SystemError(FailedAction::UseClipboard, {}, code);
}

OwnedClipboard Open(HWND owner) {
  for (int attempt = 1;; ++attempt) {
    if (OpenClipboard(owner) != FALSE) {
      return OwnedClipboard(true);
    }
    const DWORD error = GetLastError();
    if (attempt == kAttempts) {
      throw Refused(error);
    }
    Sleep(kPause);
  }
}

}  // namespace

void CopyToClipboard(std::wstring_view text) {
  OwnedGlobal memory = InMemory(text);
  // Only a window can own what is put on the clipboard; the text stays when the window goes.
  const OwnedHelper owner(
      CreateWindowExW(0, L"Static", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr));
  const OwnedClipboard clipboard = Open(owner.Get());
  if (EmptyClipboard() == FALSE || SetClipboardData(CF_UNICODETEXT, memory.Get()) == nullptr) {
    throw Refused(GetLastError());
  }
  static_cast<void>(memory.Release());  // it is the clipboard's now
}

}  // namespace folivant::platform
