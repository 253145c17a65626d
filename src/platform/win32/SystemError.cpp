#include "platform/win32/SystemError.h"

namespace folivant::platform {

std::wstring SystemText(DWORD code) {
  wchar_t text[512];
  DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text,
                                static_cast<DWORD>(std::size(text)), nullptr);
  while (length > 0 && (text[length - 1] == L'\n' || text[length - 1] == L'\r' || text[length - 1] == L' ')) {
    --length;
  }
  return {text, length};
}

RuntimeError SystemError(FailedAction action, const std::wstring& object, DWORD code) {
  return {action, object, SystemText(code), code};
}

}  // namespace folivant::platform
