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

std::wstring LongSpelling(std::wstring_view path) {
  constexpr std::size_t kShortEnough = 240;  // leaves room for an 8.3 name, the limit of directories
  if (path.size() <= kShortEnough || path.starts_with(L"\\\\?\\")) {
    return std::wstring(path);
  }
  return path.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + std::wstring(path.substr(2)) : L"\\\\?\\" + std::wstring(path);
}

}  // namespace folivant::platform
