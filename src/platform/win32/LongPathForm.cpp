#include "platform/win32/LongPathForm.h"

#include <algorithm>

#include "platform/win32/Win32.h"

namespace folivant::platform {
namespace {

constexpr std::wstring_view kVerbatim = L"\\\\?\\";
constexpr std::wstring_view kDevice = L"\\\\.\\";
constexpr std::size_t kPlainLimit = MAX_PATH - 12;  // a directory must leave room for an 8.3 name

bool IsDriveOrServer(std::wstring_view path) {
  return path.starts_with(L"\\\\") || (path.size() >= 3 && path.substr(1, 2) == L":\\");
}

/// A component such as "name." that the file functions would take for "name".
bool LosesDotsOrBlanks(std::wstring_view path) {
  while (!path.empty()) {
    const std::wstring_view name = path.substr(0, path.find(L'\\'));
    if ((name.ends_with(L'.') || name.ends_with(L' ')) && name != L"." && name != L"..") {
      return true;
    }
    path.remove_prefix(std::min(name.size() + 1, path.size()));
  }
  return false;
}

bool HasDotComponents(std::wstring_view path) {
  return path.find(L"\\.\\") != path.npos || path.find(L"\\..\\") != path.npos || path.ends_with(L"\\.") ||
         path.ends_with(L"\\..") || path.find(L'/') != path.npos;
}

std::wstring FullPath(std::wstring_view path) {
  const std::wstring text(path);
  std::wstring full(text.size() + MAX_PATH, L'\0');
  DWORD length = GetFullPathNameW(text.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  if (length > full.size()) {
    full.resize(length);
    length = GetFullPathNameW(text.c_str(), length, full.data(), nullptr);
  }
  full.resize(length);
  return full;
}

std::wstring Verbatim(std::wstring_view path) {
  const std::wstring full = IsDriveOrServer(path) && !HasDotComponents(path) ? std::wstring(path) : FullPath(path);
  if (full.starts_with(L"\\\\")) {
    return std::wstring(kVerbatim) + L"UNC" + full.substr(1);
  }
  return std::wstring(kVerbatim) + full;
}

}  // namespace

std::wstring LongPathForm(std::wstring_view path) {
  if (path.starts_with(kVerbatim) || path.starts_with(kDevice)) {
    return std::wstring(path);
  }
  const bool trimmed = IsDriveOrServer(path) && LosesDotsOrBlanks(path) && !HasDotComponents(path);
  return trimmed || path.size() >= kPlainLimit ? Verbatim(path) : std::wstring(path);
}

std::wstring EntryPathForm(std::wstring_view path) {
  const bool plain = IsDriveOrServer(path) && !path.starts_with(L"\\\\") && !HasDotComponents(path);
  const bool device = plain && FullPath(path).starts_with(kDevice);  // which names are depends on the system's version
  return device ? std::wstring(kVerbatim) + std::wstring(path) : LongPathForm(path);
}

}  // namespace folivant::platform
