// Reading and writing the rows of the settings table, from and to the store or the filter file in use.
#include "app/Settings.h"

#include <algorithm>
#include <span>

#include "app/SettingsStore.h"
#include "app/SettingsTable.h"
#include "app/mdlVars.h"
#include "base/mdlFileRoutines.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "ui/Language.h"

namespace folivant {
namespace {

constexpr wchar_t kLastTab[] = L"LastTab";

SettingsStore OpenStore() {
  return mdlVars::UseFilterFile ? SettingsStore(mdlVars::FilterFile) : SettingsStore();
}

std::wstring DefaultOf(const Setting& setting) {
  return setting.Default == nullptr ? platform::CurrentDirectory() : setting.Default;
}

struct StoredText {
  std::wstring Text;   ///< what the setting takes
  std::wstring Key;    ///< the key that it came from
  std::wstring Value;  ///< all that stands there
};

/// The old key is looked for in the asking section, then in "Settings".
StoredText ReadOldKey(const SettingsStore& store, const Setting& setting) {
  constexpr wchar_t kShow[] = L"Show";
  const std::wstring value =
      store.GetSettingEx(setting.Section, kShow, store.GetSettingEx(kSettingsSection, kShow, L""));
  if (value.empty()) {
    return {setting.Default, setting.Key, setting.Default};
  }
  return {value.substr(std::min(setting.Old.First, value.size()), setting.Old.Count), kShow, value};
}

StoredText ReadSetting(const SettingsStore& store, const Setting& setting) {
  const std::wstring key = setting.ReadingKey == nullptr ? setting.Key : setting.ReadingKey;
  if (setting.Route == SettingRoute::Store) {
    const std::wstring value = store.GetStoreSetting(setting.Section, key, DefaultOf(setting));
    return {value, key, value};
  }
  if (setting.Old.Count == 0) {
    std::wstring value = store.GetSettingEx(setting.Section, key, DefaultOf(setting));
    if (setting.Group == SettingGroup::Path &&
        Trim(value).empty()) {  // no path: it would lead to the root of the current drive
      value = DefaultOf(setting);
    }
    return {value, key, value};
  }
  const StoredText old = ReadOldKey(store, setting);
  const std::wstring value = store.GetSettingEx(setting.Section, key, old.Text);
  return value == old.Text ? old : StoredText{value, key, value};
}

void Load(const SettingsStore& store, const Setting& setting, std::vector<BadSetting>& bad) {
  if (store.UsesFilterFile() && setting.Route == SettingRoute::Store) {
    return;
  }
  const StoredText stored = ReadSetting(store, setting);
  if (const std::optional<Refusal> refusal = ReadMember(setting.Member, stored.Text)) {
    bad.push_back({store.LocationOf(setting.Section), stored.Key, stored.Value, refusal->Limits});
    ReadMember(setting.Member, DefaultOf(setting));
  }
}

/// A style that only a file as argument selects, and a directory that is gone, are not remembered.
bool IsSaved(const Setting& setting) {
  switch (setting.Group) {
    case SettingGroup::Style:
      return mdlVars::Format.ListingStyle != ListingStyle::PathListFile;
    case SettingGroup::Path:
      return platform::IsDirectory(mdlVars::Start.Shown);
    default:
      return true;
  }
}

void Save(SettingsStore& store, const Setting& setting) {
  if (!IsSaved(setting)) {
    return;
  }
  const std::wstring text = MemberText(setting.Member);
  if (setting.Written == SettingWritten::WhenChanged && text == DefaultOf(setting)) {
    store.RemoveSettingEx(setting.Section, setting.Key);
  } else if (setting.Route == SettingRoute::Ex) {
    store.SaveSettingEx(setting.Section, setting.Key, text);
  } else {
    store.SaveStoreSetting(setting.Section, setting.Key, text);
  }
}

/// Into the per-user store, which keeps each setting at once.
void SaveGroup(SettingGroup group) {
  SettingsStore store;
  for (const Setting& setting : Settings()) {
    if (setting.Group == group) {
      Save(store, setting);
    }
  }
}

/// Raises UseFilterFile around one complete load or save.
class FilterFileScope {
 public:
  explicit FilterFileScope(const std::wstring& path) {
    mdlVars::FilterFile = path;
    mdlVars::UseFilterFile = true;
  }
  ~FilterFileScope() { mdlVars::UseFilterFile = false; }
  FilterFileScope(const FilterFileScope&) = delete;
  FilterFileScope& operator=(const FilterFileScope&) = delete;
};

void ShowWarning(const std::wstring& text) {
  platform::ShowMessage(text, platform::BoxIcon::Exclamation, platform::BoxButtons::Ok);
}

std::vector<BadSetting> LoadFrom(const std::wstring& filterFile) {
  const FilterFileScope scope(filterFile);
  return LoadSettings();
}

}  // namespace

std::vector<BadSetting> LoadSettings() {
  const SettingsStore store = OpenStore();
  std::vector<BadSetting> bad;
  for (const Setting& setting : Settings()) {
    Load(store, setting, bad);
  }
  mdlVars::Start.Shown = WithBackslashes(mdlVars::Start.Shown);
  mdlVars::Start.OnDisk = mdlVars::Start.Shown;
  return bad;
}

void ReportBadSettings(const std::vector<BadSetting>& bad) {
  if (!bad.empty()) {
    ShowWarning(BadSettingsText(bad, mdlVars::Texts));
  }
}

void SaveSettings() {
  SettingsStore store = OpenStore();
  for (const Setting& setting : Settings()) {
    Save(store, setting);
  }
  store.Save();
}

void SaveGeneralSettings() {
  SaveGroup(SettingGroup::General);
}
void SavePrinterSettings() {
  SaveGroup(SettingGroup::Printer);
}
void SaveFilterSettings() {
  SaveGroup(SettingGroup::Filter);
}
void SaveListingStyle() {
  SaveGroup(SettingGroup::Style);
}
void SaveFormatSettings() {
  SaveGroup(SettingGroup::Columns);
}

void LoadFilterFile(const std::wstring& path) {
  ReportBadSettings(LoadFrom(path));
}

bool LoadFilterFileIfWanted(const std::wstring& path) {
  const bool wanted =
      SettingsStore(path).HoldsSettings() ||
      platform::ShowMessage(WithPlaceholders(mdlVars::Texts[TextId::LoadDefaults], path), platform::BoxIcon::Question,
                            platform::BoxButtons::YesNo, platform::BoxDefault::Second) == platform::BoxAnswer::Yes;
  if (wanted) {
    LoadFilterFile(path);
  }
  return wanted;
}

void SaveFilterFile(const std::wstring& path) {
  const FilterFileScope scope(path);
  SaveSettings();
}

int LoadLastTab() {
  std::int32_t tab = 1;
  ReadMember(&tab, SettingsStore().GetStoreSetting(kSettingsSection, kLastTab, L"1"));
  return tab;
}

void SaveLastTab(int tab) {
  SettingsStore().SaveStoreSetting(kSettingsSection, kLastTab, WholeText(tab));
}

}  // namespace folivant
