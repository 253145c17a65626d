#include "app/SettingsStore.h"

namespace folivant {
namespace {

constexpr wchar_t kFilterFileSection[] = L"Folivant 3.5";
constexpr std::size_t kLongestFileValue = 259;

}  // namespace

SettingsStore::SettingsStore(const std::wstring& filterFile) : file_(filterFile) {}

bool SettingsStore::HoldsSettings() const {
  return !file_ || file_->HasSection(kFilterFileSection);
}

std::wstring SettingsStore::GetSettingEx(const std::wstring& section, const std::wstring& key,
                                         const std::wstring& preset) const {
  return file_ ? file_->Read(kFilterFileSection, key, preset, kLongestFileValue)
               : GetStoreSetting(section, key, preset);
}

void SettingsStore::SaveSettingEx(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
  if (file_) {
    file_->Write(kFilterFileSection, key, value);
  } else {
    SaveStoreSetting(section, key, value);
  }
}

void SettingsStore::RemoveSettingEx(const std::wstring& section, const std::wstring& key) {
  if (file_) {
    file_->Remove(kFilterFileSection, key);
  } else {
    platform::RemoveFromStore(section, key);
  }
}

std::wstring SettingsStore::GetStoreSetting(const std::wstring& section, const std::wstring& key,
                                            const std::wstring& preset) const {
  return file_ ? std::wstring() : sections_.try_emplace(section, section).first->second.Read(key).value_or(preset);
}

void SettingsStore::SaveStoreSetting(const std::wstring& section, const std::wstring& key,
                                     const std::wstring& value) const {
  if (!file_) {
    platform::WriteStore(section, key, value);
    sections_.erase(section);  // it may not have been there before
  }
}

void SettingsStore::Save() const {
  if (file_) {
    file_->Save();
  }
}

std::wstring SettingsStore::LocationOf(const std::wstring& section) const {
  return file_ ? file_->Path() : platform::StoreName(section);
}

}  // namespace folivant
