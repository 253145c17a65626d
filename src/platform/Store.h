// The per-user store: text values under a section and a key. On Windows string values below
// HKEY_CURRENT_USER\Software\Folivant 3.0\<section>; in the host build a private-profile file
// "Folivant 3.0/settings.ini" in the user's configuration folder ($XDG_CONFIG_HOME or ~/.config).
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace folivant::platform {

/// One section, found once: a start asks for some fifty values, and each search for their place costs as much as a
/// value.
class StoreSection {
 public:
  /// A section that is not there now, or may not be read, holds nothing.
  explicit StoreSection(const std::wstring& section);
  ~StoreSection();
  StoreSection(const StoreSection&) = delete;
  StoreSection& operator=(const StoreSection&) = delete;

  /// Nothing for a key that is not there or holds no text.
  std::optional<std::wstring> Read(const std::wstring& key) const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

/// Throws RuntimeError (WriteSetting) that names section and key.
void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value);
/// Takes the key out, if it is there. Throws like WriteStore.
void RemoveFromStore(const std::wstring& section, const std::wstring& key);
/// The store's name for messages: "HKEY_CURRENT_USER\Software\Folivant 3.0\<section>" or the file's path.
std::wstring StoreName(const std::wstring& section);

}  // namespace folivant::platform
