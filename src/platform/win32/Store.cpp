#include "platform/Store.h"

#include <algorithm>

#include "platform/win32/Owned.h"
#include "platform/win32/SystemError.h"

namespace folivant::platform {
namespace {

constexpr const wchar_t* kRoot = L"Software\\Folivant 3.0\\";

std::size_t BytesOf(const std::wstring& text) {
  return (text.size() + 1) * sizeof(wchar_t);
}

}  // namespace

struct StoreSection::State {
  OwnedKey Key;
};

StoreSection::StoreSection(const std::wstring& section) : state_(std::make_unique<State>()) {
  HKEY place = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, (kRoot + section).c_str(), 0, KEY_QUERY_VALUE, &place) == ERROR_SUCCESS) {
    state_->Key = OwnedKey(place);
  }
}

StoreSection::~StoreSection() = default;

std::optional<std::wstring> StoreSection::Read(const std::wstring& key) const {
  if (!state_->Key.IsOpen()) {
    return std::nullopt;
  }
  std::wstring value(256, L'\0');
  for (;;) {
    DWORD size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    const LSTATUS status =
        RegGetValueW(state_->Key.Get(), nullptr, key.c_str(), RRF_RT_REG_SZ, nullptr, value.data(), &size);
    if (status == ERROR_SUCCESS) {
      // What other programs stored may lack its NUL, or be no bytes at all.
      value.resize(std::min(size / sizeof(wchar_t), value.find(L'\0')));
      return value;
    }
    if (status != ERROR_MORE_DATA) {
      return std::nullopt;
    }
    value.resize(2 * value.size());
  }
}

void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  HKEY raw = nullptr;
  LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, (kRoot + section).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                   KEY_SET_VALUE, nullptr, &raw, nullptr);
  const OwnedKey place(raw);
  if (status == ERROR_SUCCESS) {
    status = RegSetValueExW(raw, key.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                            static_cast<DWORD>(BytesOf(value)));
  }
  if (status != ERROR_SUCCESS) {
    throw SystemError(FailedAction::WriteSetting, StoreName(section) + L"\\" + key, static_cast<DWORD>(status));
  }
}

void RemoveFromStore(const std::wstring& section, const std::wstring& key) {
  const LSTATUS status = RegDeleteKeyValueW(HKEY_CURRENT_USER, (kRoot + section).c_str(), key.c_str());
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND) {
    throw SystemError(FailedAction::WriteSetting, StoreName(section) + L"\\" + key, static_cast<DWORD>(status));
  }
}

std::wstring StoreName(const std::wstring& section) {
  return std::wstring(L"HKEY_CURRENT_USER\\") + kRoot + section;
}

}  // namespace folivant::platform
