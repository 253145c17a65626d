// The table of everything that Folivant remembers: a new setting is one row.
#pragma once

#include <cstddef>
#include <span>

#include "app/SettingValue.h"

namespace folivant {

/// Which settings are saved together.
enum class SettingGroup { General, Printer, Filter, Style, Columns, Path, Destination };
/// Ex travels into filter files, Store stays on the machine.
enum class SettingRoute { Ex, Store };

inline constexpr wchar_t kSettingsSection[] = L"Settings";

/// Whether a setting is stored always, or only while it differs from its default: a key that came later, so that the
/// filter files of those who do not use it keep their bytes.
enum class SettingWritten { Always, WhenChanged };

/// A combined key of older versions: where the key is missing, these characters of "Show" stand in for it.
struct OldKey {
  std::size_t First = 0;
  std::size_t Count = 0;  ///< 0: there is no such key
};

struct Setting {
  SettingGroup Group;
  SettingRoute Route;
  const wchar_t* Section;  ///< in the store; a filter file has one section
  const wchar_t* Key;
  const wchar_t* Default;               ///< null: the process's current directory
  SettingMember Member;                 ///< of the records of mdlVars
  const wchar_t* ReadingKey = nullptr;  ///< where reading asks for another key than writing
  OldKey Old = {};
  SettingWritten Written = SettingWritten::Always;
};

/// Every setting, in the order of reading and writing.
std::span<const Setting> Settings();

}  // namespace folivant
