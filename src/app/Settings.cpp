#include "app/Settings.h"

#include <algorithm>
#include <span>

#include "app/SettingValue.h"
#include "app/SettingsStore.h"
#include "app/mdlVars.h"
#include "base/mdlFileRoutines.h"
#include "platform/Files.h"
#include "platform/MessageBox.h"
#include "platform/Printers.h"
#include "ui/Language.h"

namespace folivant {
namespace {

constexpr wchar_t kSettings[] = L"Settings";
constexpr wchar_t kFilter[] = L"Filter";
constexpr wchar_t kFormat[] = L"Format";
constexpr wchar_t kLastTab[] = L"LastTab";

/// Which settings are saved together.
enum class Group { General, Printer, Filter, Style, Columns, Path, Destination };
/// Ex travels into filter files, Store stays on the machine.
enum class Route { Ex, Store };

/// A combined key of older versions: where the key is missing, these characters of "Show" stand in for it.
struct OldKey {
  std::size_t First = 0;
  std::size_t Count = 0;  ///< 0: there is no such key
};

struct Setting {
  Group Set;
  Route Way;
  const wchar_t* Section;
  const wchar_t* Key;
  const wchar_t* Default;  ///< null: the process's current directory
  SettingMember Member;
  const wchar_t* ReadingKey = nullptr;  ///< where reading asks for another key than writing
  OldKey Old = {};
};

/// Every setting, in the order of reading and writing.
std::span<const Setting> Settings() {
  using enum Route;
  using G = Group;
  GeneralSettings& general = mdlVars::General;
  PrinterSettings& printer = mdlVars::Printer;
  FilterSettings& filter = mdlVars::Filter;
  ListingFormat& format = mdlVars::Format;
  static const std::vector<Setting> settings = {
      {G::General, Store, kSettings, L"TextViewer", L"notepad.exe", &general.TextViewer},
      {G::General, Store, kSettings, L"TextWidth", L"80",
       RangedMember{&general.TextWidth, kReadableTextWidths, kTextWidths}},
      {G::General, Store, kSettings, L"TextHeight", L"26", &general.TextHeight},
      {G::General, Store, kSettings, L"DateFormat", L"5", &general.DateFormat},
      {G::General, Store, kSettings, L"Inches", L"False", &general.Inches},
      {G::General, Store, kSettings, L"ExitWhenDone", L"True", &general.ExitWhenDone},
      {G::General, Store, kSettings, L"FilesFirst", L"True", &general.FilesFirst},
      {G::General, Store, kSettings, L"EmptyDirs", L"False", &general.EmptyDirs},
      {G::General, Store, kSettings, L"Language", L"english.ini", &general.Language},
      {G::General, Ex, kSettings, L"MarginLeft", L"20", &general.MarginLeft},
      {G::General, Ex, kSettings, L"MarginRight", L"20", &general.MarginRight},
      {G::General, Ex, kSettings, L"MarginTop", L"15", &general.MarginTop},
      {G::General, Ex, kSettings, L"MarginBottom", L"20", &general.MarginBottom},
      // Written under one key and read from another, on purpose: every start opens in portrait.
      {G::General, Ex, kSettings, L"Port", L"True", &general.Portrait, L"Portrait"},
      {G::General, Ex, kSettings, L"FontName", L"Courier New", &general.FontName},
      {G::General, Ex, kSettings, L"FontSize", L"10", &general.FontSize},
      {G::General, Ex, kSettings, L"Font80HF", L"True", &general.Font80HF},
      {G::General, Ex, kSettings, L"FontNameHF", L"Courier New", &general.FontNameHF},
      {G::General, Ex, kSettings, L"FontSizeHF", L"8", &general.FontSizeHF},
      {G::General, Ex, kSettings, L"Header", L"Folivant - %d %t   %p (%g)", &general.Header},
      {G::General, Ex, kSettings, L"Footer", L"- %n -", &general.Footer},

      {G::Printer, Store, kSettings, L"PrinterName", kNoPrinter, &printer.PrinterName},
      {G::Printer, Store, kSettings, L"PrinterCopies", L"1", &printer.PrinterCopies},
      {G::Printer, Store, kSettings, L"PrinterDuplex", L"1", &printer.PrinterDuplex},
      {G::Printer, Store, kSettings, L"PrinterQuality", L"-2", &printer.PrinterQuality},
      {G::Printer, Store, kSettings, L"PrinterPaperBin", L"1", &printer.PrinterPaperBin},

      {G::Filter, Ex, kFilter, L"Filter", L"1000",
       SwitchGroup{{&filter.NameOn, &filter.SizeOn, &filter.DateOn, &filter.AttrOn}}},
      {G::Filter, Ex, kFilter, L"FilterName", L"*.*", &filter.FilterName},
      {G::Filter, Ex, kFilter, L"FilterSizeMin", L"True", &filter.SizeMin},
      {G::Filter, Ex, kFilter, L"FilterSize", L"0", &filter.FilterSize},
      {G::Filter, Ex, kFilter, L"FilterDateMin", L"1980/01/01", DayMember{&filter.DateMin}},
      {G::Filter, Ex, kFilter, L"FilterDateMax", L"2039/12/31", DayMember{&filter.DateMax}},
      {G::Filter, Ex, kFilter, L"Attr", L"22002", &filter.Attributes, nullptr, OldKey{5, 5}},
      {G::Filter, Ex, kFilter, L"OrderBy", L"1", &filter.OrderBy},
      {G::Filter, Ex, kFilter, L"OrderAZ", L"True", &filter.OrderAZ},

      {G::Style, Ex, kSettings, L"Format", L"1", &format.ListingStyle},

      {G::Columns, Ex, kFormat, L"SubLevel", L"0", &format.SubLevel},
      {G::Columns, Ex, kFormat, L"FShow", L"10110",
       SwitchGroup{{&format.Files.Name, &format.Files.DosName, &format.Files.Size, &format.Files.Date,
                    &format.Files.Attributes}},
       nullptr, OldKey{0, 5}},
      {G::Columns, Ex, kFormat, L"TShow", L"1111",
       SwitchGroup{{&format.Directories.Files, &format.Directories.Size, &format.Directories.TotalFiles,
                    &format.Directories.TotalSize}}},

      {G::Path, Ex, kSettings, L"Path", nullptr, &mdlVars::Tree.StartPath},
      {G::Destination, Ex, kSettings, L"OutputTo", L"0", &mdlVars::OutputTo},
  };
  return settings;
}

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
  const std::wstring value = store.GetSettingEx(setting.Section, kShow, store.GetSettingEx(kSettings, kShow, L""));
  if (value.empty()) {
    return {setting.Default, setting.Key, setting.Default};
  }
  return {value.substr(std::min(setting.Old.First, value.size()), setting.Old.Count), kShow, value};
}

StoredText ReadSetting(const SettingsStore& store, const Setting& setting) {
  const std::wstring key = setting.ReadingKey == nullptr ? setting.Key : setting.ReadingKey;
  if (setting.Way == Route::Store) {
    const std::wstring value = store.GetStoreSetting(setting.Section, key, DefaultOf(setting));
    return {value, key, value};
  }
  if (setting.Old.Count == 0) {
    std::wstring value = store.GetSettingEx(setting.Section, key, DefaultOf(setting));
    if (setting.Set == Group::Path && Trim(value).empty()) {  // no path: it would lead to the root of the current drive
      value = DefaultOf(setting);
    }
    return {value, key, value};
  }
  const StoredText old = ReadOldKey(store, setting);
  const std::wstring value = store.GetSettingEx(setting.Section, key, old.Text);
  return value == old.Text ? old : StoredText{value, key, value};
}

void Load(const SettingsStore& store, const Setting& setting, std::vector<BadSetting>& bad) {
  if (store.UsesFilterFile() && setting.Way == Route::Store) {
    return;
  }
  const StoredText stored = ReadSetting(store, setting);
  if (const std::optional<Refusal> refusal = ReadMember(setting.Member, stored.Text)) {
    bad.push_back({store.PlaceOf(setting.Section), stored.Key, stored.Value, refusal->Limits});
    ReadMember(setting.Member, DefaultOf(setting));
  }
}

/// A style that only a file as argument selects, and a directory that is gone, are not remembered.
bool IsSaved(const Setting& setting) {
  switch (setting.Set) {
    case Group::Style:
      return mdlVars::Format.ListingStyle != ListingStyle::PathListFile;
    case Group::Path:
      return platform::IsDirectory(mdlVars::Tree.StartPath);
    default:
      return true;
  }
}

void Save(SettingsStore& store, const Setting& setting) {
  if (!IsSaved(setting)) {
    return;
  }
  const std::wstring text = MemberText(setting.Member);
  if (setting.Way == Route::Ex) {
    store.SaveSettingEx(setting.Section, setting.Key, text);
  } else {
    store.SaveStoreSetting(setting.Section, setting.Key, text);
  }
}

/// Into the per-user store, which keeps each setting at once.
void SaveGroup(Group group) {
  SettingsStore store;
  for (const Setting& setting : Settings()) {
    if (setting.Set == group) {
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
  mdlVars::Tree.StartPath = WithBackslashes(mdlVars::Tree.StartPath);
  mdlVars::Tree.StartPathOnDisk = mdlVars::Tree.StartPath;
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
  SaveGroup(Group::General);
}
void SavePrinterSettings() {
  SaveGroup(Group::Printer);
}
void SaveFilterSettings() {
  SaveGroup(Group::Filter);
}
void SaveListingStyle() {
  SaveGroup(Group::Style);
}
void SaveFormatSettings() {
  SaveGroup(Group::Columns);
}

void LoadFilterFile(const std::wstring& path) {
  ReportBadSettings(LoadFrom(path));
}

bool LoadFilterFileIfWanted(const std::wstring& path) {
  const bool wanted =
      SettingsStore(path).HoldsSettings() ||
      platform::ShowMessage(WithPlaceholders(mdlVars::Texts[Text::LoadDefaults], path), platform::BoxIcon::Question,
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
  ReadMember(&tab, SettingsStore().GetStoreSetting(kSettings, kLastTab, L"1"));
  return tab;
}

void SaveLastTab(int tab) {
  SettingsStore().SaveStoreSetting(kSettings, kLastTab, WholeText(tab));
}

void ResolvePrinterName() {
  std::wstring& name = mdlVars::Printer.PrinterName;
  if (name == kNoPrinter) {
    name = platform::DefaultPrinterName().value_or(kNoPrinter);
  }
}

bool FindPrinter() {
  ResolvePrinterName();
  const std::wstring& name = mdlVars::Printer.PrinterName;
  if (platform::PrinterNames().empty()) {
    ShowWarning(mdlVars::Texts[Text::NoPrinter]);
    return false;
  }
  if (name == kNoPrinter || (name.empty() && !platform::DefaultPrinterName())) {
    ShowWarning(mdlVars::Texts[Text::NoPrinterChosen]);
    return false;
  }
  return true;
}

}  // namespace folivant
