// The per-user store: text values under a section and a key. On Windows string values below
// HKEY_CURRENT_USER\Software\Folivant 3.0\<section>; in the native build a private-profile file
// "Folivant 3.0/settings.ini" in the user's configuration folder ($XDG_CONFIG_HOME or ~/.config).
#pragma once

#include <optional>
#include <string>

namespace folivant::platform {

std::optional<std::wstring> ReadStore(const std::wstring& section, const std::wstring& key);
/// Throws RuntimeError (WriteSetting) that names section and key.
void WriteStore(const std::wstring& section, const std::wstring& key, const std::wstring& value);
/// The store's name for messages: "HKEY_CURRENT_USER\Software\Folivant 3.0\<section>" or the file's path.
std::wstring StoreName(const std::wstring& section);

}  // namespace folivant::platform
