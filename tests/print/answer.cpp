// Reads a message box of another program and presses its default button: answer TITLE SECONDS. Writes the box's text as
// UTF-8; ends with 1 when no such box comes in time.
#include <cstdio>
#include <cwchar>
#include <string>

#include "platform/win32/Win32.h"

namespace {

constexpr int kTextId = 0xFFFF;
constexpr DWORD kPause = 50;  // milliseconds

HWND FindBox(const wchar_t* title) {
  for (HWND box = nullptr; (box = FindWindowExW(nullptr, box, L"#32770", title)) != nullptr;) {
    if (IsWindowVisible(box) != 0 && GetDlgItem(box, kTextId) != nullptr) {
      return box;
    }
  }
  return nullptr;
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
  const LRESULT length = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void WriteUtf8(const std::wstring& text) {
  const int size = static_cast<int>(text.size());
  std::string bytes(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 3) {
    return 2;
  }
  const ULONGLONG end = GetTickCount64() + std::wcstoul(arguments[2], nullptr, 10) * 1000;
  HWND box = nullptr;
  while ((box = FindBox(arguments[1])) == nullptr) {
    if (GetTickCount64() > end) {
      return 1;
    }
    Sleep(kPause);
  }
  WriteUtf8(TextOf(GetDlgItem(box, kTextId)));
  while (IsWindow(box) != 0 && GetTickCount64() < end) {
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    Sleep(kPause);
  }
  return 0;
}
