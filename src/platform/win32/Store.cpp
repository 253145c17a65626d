#include "platform/Store.h"

#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

const std::wstring kRoot = L"Software\\Folivant 3.0\\";

}  // namespace

std::optional<std::wstring> ReadStore(const std::wstring& section, const std::wstring& key) {
  HKEY raw = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, (kRoot + section).c_str(), 0, KEY_QUERY_VALUE, &raw) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  const OwnedKey opened(raw);
  DWORD type = 0;
  DWORD bytes = 0;
  if (RegQueryValueExW(raw, key.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS || type != REG_SZ) {
    return std::nullopt;
  }
  std::wstring value(bytes / sizeof(wchar_t) + 1, L'\0');
  bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
  if (RegQueryValueExW(raw, key.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(value.data()), &bytes) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  value.resize(value.find(L'\0'));
  return value;
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  HKEY raw = nullptr;
  LSTATUS error = RegCreateKeyExW(HKEY_CURRENT_USER, (kRoot + section).c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                                  &raw, nullptr);
  const OwnedKey opened(raw);
  if (error == ERROR_SUCCESS) {
    error = RegSetValueExW(raw, key.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                           static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }
  if (error != ERROR_SUCCESS) {
    throw SystemError(FailedAction::WriteSetting, StoreName(section) + L'\\' + key, static_cast<DWORD>(error));
  }
}

std::wstring StoreName(const std::wstring& section) {
  return L"HKEY_CURRENT_USER\\" + kRoot + section;
}

}  // namespace folivant::platform
