// Where settings are read and written: the per-user store, or a filter file for those that may travel in one. Every
// value is text under a section and a key.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/ProfileFile.h"
#include "platform/Store.h"

namespace folivant {

class SettingsStore {
 public:
  /// The per-user store.
  SettingsStore() = default;
  /// The filter file of that name, read now. Throws RuntimeError (ReadFile).
  explicit SettingsStore(const std::wstring& filterFile);

  bool UsesFilterFile() const { return file_.has_value(); }
  /// Whether the filter file has the section of Folivant's settings at all; the per-user store always has.
  bool HoldsSettings() const;

  /// Settings that travel into filter files. There they all share one section, whatever `section` says, so that keys
  /// are unique across sections; a value of a filter file ends after 259 characters.
  std::wstring GetSettingEx(const std::wstring& section, const std::wstring& key, const std::wstring& preset) const;
  /// Into a filter file only with Save. Throws RuntimeError (WriteSetting).
  void SaveSettingEx(const std::wstring& section, const std::wstring& key, const std::wstring& value);
  /// Takes the key out, if it is there: its default holds again.
  void RemoveSettingEx(const std::wstring& section, const std::wstring& key);

  /// Settings bound to the machine: with a filter file nothing is read (an empty text) or written.
  std::wstring GetStoreSetting(const std::wstring& section, const std::wstring& key, const std::wstring& preset) const;
  void SaveStoreSetting(const std::wstring& section, const std::wstring& key, const std::wstring& value) const;

  /// Puts the collected writes into the filter file in one replacement; the per-user store has them already. Throws
  /// RuntimeError (WriteFile).
  void Save() const;
  /// What a message calls the place of a setting: the filter file's path, or the store's own name.
  std::wstring LocationOf(const std::wstring& section) const;

 private:
  std::optional<ProfileFile> file_;
  mutable std::map<std::wstring, platform::StoreSection> sections_;  ///< of the per-user store, as far as asked for
};

}  // namespace folivant
