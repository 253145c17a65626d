// Language files: private-profile files in the program folder, whose section "Messages" holds the numbered texts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/Messages.h"

namespace folivant {

/// Fills `texts` from the file `language` in `programFolder`; a missing file makes `language` "english.ini", a missing
/// text comes from english.ini, and one missing there as well shows its number between two pairs of asterisks. Texts
/// are cut to 299 characters. A file that is too large to be read is told in a message box. Returns the full path of
/// the language's help file, or of "folvnt40.hlp" when the language has none.
std::wstring LoadLanguage(const std::wstring& programFolder, std::wstring& language, Messages& texts);

struct LanguageEntry {
  std::wstring FileName;  ///< "english.ini"
  std::wstring Name;      ///< "English"
  std::int32_t Flag = 0;  ///< index of the flag picture, from 0
};
/// Every language file of the folder, in the order of the file system.
std::vector<LanguageEntry> ListLanguages(const std::wstring& programFolder);

/// Puts the texts in the places of "%1" to "%3"; what was put in is not searched again.
std::wstring WithPlaceholders(std::wstring text, const std::wstring& one, const std::wstring& two = {},
                              const std::wstring& three = {});

}  // namespace folivant
